// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel_sheet.h"

#include <platform/foundation/literals.h>
#include <views/form/subscriptions.h>
#include <views/look/theme.h>

#include <QHash>
#include <QVBoxLayout>

namespace brenvaldo::views {

namespace {

constexpr int sheetWidth = 460;

QString sheetTitle(const QString& sheet)
{
    static const QHash<QString, const char*> titles{
        {u"wwPresetsWindow"_s, QT_TRANSLATE_NOOP("PanelSheet", "Presets")},
        {u"wwPreferencesWindow"_s, QT_TRANSLATE_NOOP("PanelSheet", "Preferences")},
        {u"wwInfoWindow"_s, QT_TRANSLATE_NOOP("PanelSheet", "Help")},
        {u"wwApplicationVersionWindow"_s, QT_TRANSLATE_NOOP("PanelSheet", "New version")},
    };
    return PanelSheet::tr(titles.value(sheet, "Brenvaldo"));
}

} // namespace

PanelSheet::PanelSheet(
    controls::Sheet& sheet,
    const panels::PanelView& view,
    const FormBuilder& builder,
    const controls::ActionRegistry& actions,
    QWidget* parent
)
    : QDialog(parent)
    , m_sheet(sheet)
    , m_actions(actions)
{
    setObjectName(sheet.name());
    setWindowTitle(sheetTitle(sheet.name()));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(sheetWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 18, 18, 18);
    column->addWidget(builder.build(view, FormBuilder::Density::Form, this));
    keepFor(*this, sheet.changed.connect([this] { follow(); }));
    follow();
}

void PanelSheet::follow()
{
    if (m_sheet.isOpen() && !isVisible())
        open();
    if (!m_sheet.isOpen() && isVisible())
        done(QDialog::Accepted);
}

void PanelSheet::reject()
{
    for (const QString& action : m_sheet.actions())
        m_actions.send(action, {.tag = m_sheet.tag(), .control = &m_sheet});
    if (m_sheet.isOpen())
        m_sheet.close();
}

} // namespace brenvaldo::views
