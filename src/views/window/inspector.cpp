// SPDX-License-Identifier: GPL-3.0-or-later
#include "inspector.h"

#include "run_title.h"
#include "section_button.h"

#include <platform/foundation/literals.h>
#include <views/form/button_faces.h>
#include <views/form/holder_view.h>
#include <views/form/live_text.h>
#include <views/form/pop_up.h>
#include <views/form/subscriptions.h>
#include <views/look/hairline.h>
#include <views/look/notice.h>
#include <views/look/style.h>
#include <views/look/style_painting.h>
#include <views/look/theme.h>
#include <workspace/functions/name_example.h>
#include <workspace/sorting/sort_sentence.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>

namespace brenvaldo::views {

namespace {

/// Picture of the section button that is pressed.
const QString pressedImage = u"SelectMainTabView1.png"_s;

/// The frame round the three section buttons.
class SectionFrame : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintFieldFrame(painter, rect(), fieldFrame(QStyle::State_Enabled));
    }
};

QWidget* column(QWidget* parent, const QMargins& margins)
{
    auto* area = new QWidget(parent);
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(margins);
    layout->setSpacing(Metrics::rowGap);
    return area;
}

} // namespace

Inspector::Inspector(
    workspace::Workspace& workspace,
    const FormBuilder& builder,
    const Binder& binder,
    QWidget* parent
)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_panels(workspace.panels())
    , m_builder(builder)
    , m_binder(binder)
{
    setFixedWidth(Metrics::inspectorWidth);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(1, 0, 0, 0);
    all->setSpacing(0);
    QWidget* top = column(this, {Metrics::margin, 12, Metrics::margin, 10});
    top->layout()->addWidget(sections());
    top->layout()->addWidget(functionRow());
    all->addWidget(top);
    all->addWidget(new Hairline(Qt::Horizontal, this));
    all->addWidget(laterNotice());
    all->addWidget(settings(), 1);
    all->addWidget(outlook());
    all->addWidget(new Hairline(Qt::Horizontal, this));
    all->addWidget(output());
    followRun();
}

QWidget* Inspector::holder(controls::Holder& holder, FormBuilder::Density density)
{
    return new HolderView(holder, m_builder, density, this);
}

QWidget* Inspector::sections()
{
    auto* frame = new SectionFrame(this);
    auto* line = new QHBoxLayout(frame);
    line->setContentsMargins(2, 2, 2, 2);
    line->setSpacing(2);
    const std::pair<controls::Button*, QString> buttons[]{
        {&m_panels.window.btnEditPhoto, u"edit-photos"_s},
        {&m_panels.window.btnFileManagement, u"manage-files"_s},
        {&m_panels.window.btnExportHtml, u"web-gallery"_s}};
    for (const auto& [control, drawing] : buttons) {
        auto* button = new SectionButton(control->title(), drawing, frame);
        button->setCheckable(true);
        const auto showPressed
            = [button, pressed = control] { button->setChecked(pressed->image() == pressedImage); };
        m_binder.bind(*button, *control);
        showPressed();
        keepFor(*button, control->changed.connect(showPressed));
        connect(button, &QAbstractButton::clicked, button, showPressed);
        line->addWidget(button);
    }
    return frame;
}

QWidget* Inspector::functionRow()
{
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Metrics::gap);
    line->addWidget(
        holder(m_panels.window.dvVCUiMainPropertySelect, FormBuilder::Density::Compact), 1
    );
    line->addWidget(sectionTitle(row), 1);
    for (controls::Button* control : {&m_panels.window.btnPresets, &m_panels.window.btnPresetsHelp})
        line->addWidget(m_builder.buildField({.control = control}, row));
    row->setMinimumHeight(Metrics::fieldHeight);
    return row;
}

/// Stands where other sections choose their function.
QWidget* Inspector::sectionTitle(QWidget* parent)
{
    auto* title = new QLabel(m_panels.window.btnExportHtml.title(), parent);
    QFont bold = title->font();
    bold.setWeight(QFont::DemiBold);
    title->setFont(bold);
    const auto& functions = m_panels.window.dvVCUiMainPropertySelect;
    const auto follow = [title, &functions] { title->setVisible(functions.isEmpty()); };
    keepFor(*title, functions.changed.connect(follow));
    follow();
    return title;
}

QWidget* Inspector::settings()
{
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(u"functionSettings"_s);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    QWidget* form = column(scroll, {Metrics::margin, 12, Metrics::margin, 16});
    form->layout()->addWidget(
        holder(m_panels.window.dvVCUiMainPropertyView, FormBuilder::Density::Form)
    );
    static_cast<QVBoxLayout*>(form->layout())->addStretch(1);
    scroll->setWidget(form);
    return scroll;
}

QWidget* Inspector::output()
{
    constexpr auto compact = FormBuilder::Density::Compact;
    auto& window = m_panels.window;
    QWidget* area = column(this, {Metrics::margin, 10, Metrics::margin, 8});
    auto* rows = static_cast<QVBoxLayout*>(area->layout());
    auto* first = new QHBoxLayout;
    first->setSpacing(Metrics::gap);
    first->addWidget(holder(window.dvVCUiPreviewPropertyView, compact), 1);
    first->addWidget(holder(window.dvVCUiApplyOnPropertyView, compact), 1);
    rows->addLayout(first);
    rows->addWidget(holder(window.dvVCUiFileTypePropertyView, compact));
    rows->addWidget(holder(window.dvVCUiMainDestinationPropertyView, compact));
    addProcessButton(*rows);
    return area;
}

void Inspector::addProcessButton(QVBoxLayout& rows)
{
    auto& window = m_panels.window;
    m_process = new QPushButton(this);
    setButtonRole(*m_process, ButtonRole::Primary);
    QFont bold = m_process->font();
    bold.setWeight(QFont::DemiBold);
    m_process->setFont(bold);
    m_binder.bind(*m_process, window.btnProcess);
    rows.addWidget(m_process);

    auto* track = new QWidget(this);
    track->setFixedHeight(5);
    auto* line = new QHBoxLayout(track);
    line->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QProgressBar(track);
    bar->setFixedHeight(5);
    bar->setAccessibleName(tr("Progress of the run"));
    m_binder.bind(*bar, window.myProgressBar);
    line->addWidget(bar);
    rows.addWidget(track);
}

QWidget* Inspector::laterNotice()
{
    m_later = new Notice(
        tr("This function comes with a later version. Its settings can be made and kept as "
           "presets already."),
        this
    );
    m_later->setObjectName(u"laterNotice"_s);
    return m_later;
}

/// What the settings would do, in words.
QWidget* Inspector::outlook()
{
    auto* text = new LiveText([this] { return outlookText(); }, this);
    text->setObjectName(u"outlook"_s);
    text->follow({&m_panels.window.dvVCUiMainPropertyView});
    text->follow(m_panels.vwFileManagementRename.controls());
    text->follow(m_panels.vwFileManagementSorting.controls());
    keepFor(*text, m_workspace.photos().entriesChanged.connect([text] { text->refreshSoon(); }));
    return text;
}

QString Inspector::outlookText() const
{
    const QStringList& shown = m_panels.window.dvVCUiMainPropertyView.views();
    const panels::RenamePanel& renaming = m_panels.vwFileManagementRename;
    if (shown.contains(renaming.name()))
        return workspace::nameExample(renaming, m_workspace.photos());
    const panels::SortingPanel& sorting = m_panels.vwFileManagementSorting;
    if (shown.contains(sorting.name()) && sorting.mySortTabView.selectedIdentifier() == u"2")
        return workspace::sortSentence(sorting);
    return {};
}

void Inspector::followRun()
{
    auto& window = m_panels.window;
    const auto follow = [this] { showRun(); };
    keepFor(*this, m_workspace.photos().entriesChanged.connect(follow));
    keepFor(*this, m_panels.vwApplyOn.pubPhotoOrientation.changed.connect(follow));
    keepFor(*this, m_panels.vwWatermark.tbvWatermarkType.changed.connect(follow));
    keepFor(*this, window.dvVCUiMainPropertyView.changed.connect(follow));
    keepFor(*this, m_workspace.functionSelected().connect(follow));
    showRun();
}

void Inspector::showRun()
{
    using workspace::RunOffer;
    const RunOffer offer = m_workspace.runOffer();
    const qsizetype photos = offer == RunOffer::Run ? m_workspace.photosOfRun().size() : 0;
    const bool isOffered = offer == RunOffer::Run || offer == RunOffer::Message;
    m_process->setText(runTitle(photos));
    m_process->setAccessibleName(m_process->text());
    m_process->setEnabled(isOffered);
    m_later->setVisible(offer == RunOffer::ComesLater);
    Q_EMIT runOffered(isOffered);
}

void Inspector::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colors().window);
    painter.fillRect(QRect(0, 0, 1, height()), colors().border);
}

} // namespace brenvaldo::views
