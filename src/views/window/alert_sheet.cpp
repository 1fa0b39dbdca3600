// SPDX-License-Identifier: GPL-3.0-or-later
#include "alert_sheet.h"

#include <platform/foundation/literals.h>
#include <views/form/binder.h>
#include <views/form/subscriptions.h>
#include <views/look/icons.h>
#include <views/look/style.h>
#include <views/look/theme.h>

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace brenvaldo::views {

namespace {

constexpr int textWidth = 380;

/// The drawing beside the text; painted anew, so that it follows the scheme.
class AlertMark : public QWidget
{
public:
    explicit AlertMark(QWidget* parent)
        : QWidget(parent)
    {
        setFixedSize(36, 36);
        setObjectName(u"alertMark"_s);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintIcon(painter, u"alert"_s, rect(), colors().accent);
    }
};

QLabel* shownText(const controls::TextField& control, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    followControl(*label, control, [label, &control] {
        label->setText(alertLines(control.stringValue()));
        label->setAccessibleName(label->text());
    });
    return label;
}

} // namespace

QString alertLines(const QString& text)
{
    QString lines = text;
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (lines.startsWith(QLatin1Char('\n')))
        lines.remove(0, 1);
    return lines;
}

AlertSheet::AlertSheet(
    const panels::WindowControls& window, const controls::ActionRegistry& actions, QWidget* parent
)
    : QDialog(parent)
    , m_window(window)
    , m_actions(actions)
{
    setObjectName(window.wwAlertWindow.name());
    setWindowTitle(tr("Brenvaldo"));
    setAccessibleName(tr("Message"));
    setWindowModality(Qt::WindowModal);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 22, 24, 18);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(8);
    grid->addWidget(new AlertMark(this), 0, 0, 2, 1, Qt::AlignTop);
    QLabel* title = shownText(window.tfHTMLAlertTitle, this);
    QFont bold = scaledFont(font(), 1.1);
    bold.setWeight(QFont::DemiBold);
    title->setFont(bold);
    grid->addWidget(title, 0, 1);
    grid->addWidget(shownText(window.tfHTMLAlertInfo, this), 1, 1);
    auto* close = new QPushButton(tr("&OK"), this);
    close->setObjectName(u"closeAlert"_s);
    close->setAccessibleName(tr("OK"));
    close->setDefault(true);
    close->setMinimumWidth(96);
    setButtonRole(*close, ButtonRole::Primary);
    connect(close, &QPushButton::clicked, this, &AlertSheet::reject);
    grid->addWidget(close, 2, 1, Qt::AlignRight);
    grid->setRowMinimumHeight(2, 48);
    keepFor(*this, window.wwAlertWindow.changed.connect([this] { follow(); }));
    follow();
}

void AlertSheet::follow()
{
    const bool wanted = m_window.wwAlertWindow.isOpen();
    if (wanted && !isVisible())
        open();
    if (!wanted && isVisible())
        done(QDialog::Accepted);
}

void AlertSheet::reject() { m_actions.send(u"cGUIcontrols.closeApplicationAlertSheetObjC"_s); }

} // namespace brenvaldo::views
