// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_tool_bar.h"

#include <platform/foundation/literals.h>
#include <views/look/hairline.h>
#include <views/look/muted_label.h>
#include <views/look/style.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace brenvaldo::views {

QString countText(const QString& counter)
{
    bool isNumber = false;
    const int count = counter.toInt(&isNumber);
    if (!isNumber)
        return counter;
    return count == 1 ? PhotoToolBar::tr("1 photo") : PhotoToolBar::tr("%1 photos").arg(count);
}

PhotoToolBar::PhotoToolBar(
    const Commands& commands,
    QAction& infoToggle,
    panels::WindowControls& window,
    const Binder& binder,
    QWidget* parent
)
    : QWidget(parent)
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(8, 6, 8, 6);
    line->setSpacing(1);
    addTitled(*line, *commands.command(u"hChoosePhotos"_s));
    addTitled(*line, *commands.command(u"hInsertPhotos"_s));
    const QList<QStringList> groups{
        {u"hRemoveSelectedObject"_s, u"hRemoveAllPhoto"_s},
        {u"setSortingModeAz"_s, u"setSortingModezA"_s},
        {u"hRotateLeft"_s, u"hRotateRight"_s, u"hFlipHorizontal"_s, u"hFlipVertical"_s},
        {u"hShareMyPhoto"_s, u"hPrintOrigPicture"_s}};
    for (const QStringList& group : groups) {
        addGap(*line);
        for (const QString& name : group)
            addDrawn(*line, *commands.command(name));
    }
    addDrawn(*line, infoToggle);
    line->addStretch(1);
    addCounter(*line, window, binder);
    m_titledWidth = line->sizeHint().width();
    showTitles(false);
    setMinimumWidth(line->sizeHint().width());
    showTitles(true);
}

void PhotoToolBar::showTitles(bool shown)
{
    for (QPushButton* button : std::as_const(m_titled))
        button->setText(shown ? button->accessibleName() : QString());
}

void PhotoToolBar::resizeEvent(QResizeEvent*) { showTitles(width() >= m_titledWidth); }

void PhotoToolBar::addTitled(QHBoxLayout& line, QAction& command)
{
    auto* button = new QPushButton(command.icon(), command.text().remove(QLatin1Char('&')), this);
    button->setObjectName(u"tool."_s + command.objectName());
    button->setAccessibleName(button->text());
    button->setToolTip(command.toolTip());
    setButtonRole(*button, line.isEmpty() ? ButtonRole::Plain : ButtonRole::Flat);
    connect(button, &QPushButton::clicked, &command, &QAction::trigger);
    line.addWidget(button);
    m_titled.append(button);
}

void PhotoToolBar::addDrawn(QHBoxLayout& line, QAction& command)
{
    if (!command.isVisible())
        return;
    auto* button = new QToolButton(this);
    button->setDefaultAction(&command);
    button->setObjectName(u"tool."_s + command.objectName());
    button->setAccessibleName(command.text().remove(QLatin1Char('&')));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setIconSize({18, 18});
    button->setFocusPolicy(Qt::TabFocus);
    line.addWidget(button);
}

void PhotoToolBar::addGap(QHBoxLayout& line)
{
    line.addSpacing(3);
    auto* mark = new Hairline(Qt::Vertical, this);
    mark->setFixedHeight(20);
    line.addWidget(mark);
    line.addSpacing(3);
}

void PhotoToolBar::addCounter(
    QHBoxLayout& line, panels::WindowControls& window, const Binder& binder
)
{
    auto* all = new QCheckBox(window.cbPhotoToProcess.title(), this);
    all->setAccessibleName(tr("Tick all photos"));
    binder.bind(*all, window.cbPhotoToProcess);
    line.addWidget(all);
    line.addSpacing(8);
    auto* count = new MutedLabel(QString(), this);
    count->setAccessibleName(tr("Number of photos"));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setMinimumWidth(count->fontMetrics().horizontalAdvance(countText(u"1000"_s)));
    const auto& counter = window.tfImageCount;
    followControl(*count, counter, [count, &counter] {
        count->setText(countText(counter.stringValue()));
    });
    line.addWidget(count);
}

} // namespace brenvaldo::views
