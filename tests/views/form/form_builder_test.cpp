// SPDX-License-Identifier: GPL-3.0-or-later
#include "../sent_actions.h"

#include <platform/foundation/literals.h>
#include <support/text_printing.h>
#include <views/form/form_builder.h>
#include <views/form/form_rows.h>
#include <views/form/holder_view.h>
#include <views/look/theme.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace brenvaldo;

namespace {

class FormBuilder : public testing::Test
{
protected:
    /// The panel in a form as wide as the inspector's.
    QWidget* build(const panels::PanelView& view)
    {
        QWidget* form = builder.build(view, views::FormBuilder::Density::Form, &window);
        window.layout()->addWidget(form);
        window.setFixedWidth(views::Metrics::inspectorWidth);
        window.show();
        QApplication::processEvents();
        return form;
    }

    void SetUp() override { new QVBoxLayout(&window); }

    panels::Panels panels;
    test::SentActions sent;
    views::Binder binder{sent.input};
    views::FormBuilder builder{panels, binder};
    QWidget window;
};

bool canBeReached(const QWidget& widget)
{
    if (widget.focusPolicy() & Qt::TabFocus)
        return true;
    const auto parts = widget.findChildren<QWidget*>();
    return std::any_of(parts.begin(), parts.end(), [](const QWidget* part) {
        return part->focusPolicy() & Qt::TabFocus;
    });
}

bool onlyShows(const controls::Control* control)
{
    return dynamic_cast<const controls::Holder*>(control)
        || dynamic_cast<const controls::ImageView*>(control)
        || dynamic_cast<const controls::ProgressIndicator*>(control);
}

} // namespace

TEST_F(FormBuilder, MakesAWidgetForEveryControlOfEveryPanel)
{
    for (const auto* view : panels.views()) {
        const QWidget* form = build(*view);
        for (const controls::Control* control : view->controls()) {
            const auto* widget = form->findChild<QWidget*>(control->name());
            ASSERT_TRUE(widget) << control->name().toStdString();
            EXPECT_TRUE(onlyShows(control) || canBeReached(*widget))
                << control->name().toStdString();
        }
    }
}

TEST_F(FormBuilder, NamesEveryFieldForThoseWhoCanNotSeeIt)
{
    for (const auto* view : panels.views()) {
        const QWidget* form = build(*view);
        for (const controls::Control* control : view->controls()) {
            const auto* widget = form->findChild<QWidget*>(control->name());
            ASSERT_TRUE(widget);
            if (onlyShows(control))
                continue;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->name().toStdString();
            EXPECT_NE(widget->accessibleName(), control->name());
        }
    }
}

TEST_F(FormBuilder, KeepsEveryPanelInsideTheInspector)
{
    for (const auto* view : panels.views()) {
        const bool isSheet = view->name().startsWith(u"ww"_s);
        const QWidget* form = build(*view);
        if (isSheet)
            continue;
        EXPECT_LE(form->minimumSizeHint().width(), views::Metrics::formWidth)
            << view->name().toStdString();
    }
}

TEST_F(FormBuilder, LetsNoWheelTurnATab)
{
    for (const auto* view : panels.views()) {
        const QWidget* form = build(*view);
        for (auto* bar : form->findChildren<QTabBar*>()) {
            bar->setFocus();
            const int before = bar->currentIndex();
            for (const int notch : {-120, 120, -120}) {
                const QPointF place = bar->rect().center();
                QWheelEvent wheel(
                    place,
                    bar->mapToGlobal(place),
                    {},
                    {0, notch},
                    Qt::NoButton,
                    Qt::NoModifier,
                    Qt::NoScrollPhase,
                    false
                );
                QCoreApplication::sendEvent(bar, &wheel);
                EXPECT_FALSE(wheel.isAccepted()) << "the form is scrolled instead";
                EXPECT_EQ(bar->currentIndex(), before) << view->name().toStdString();
            }
        }
    }
}

TEST_F(FormBuilder, HidesARowWhoseControlsAreAllHidden)
{
    auto& panel = panels.vwResizePhotos.dvVCUiScaleMaxView;
    const QWidget* form = build(panel);
    const QWidget* field = form->findChild<QWidget*>(panel.tfScaleMaxVal.name());
    const QWidget* row = field->parentWidget();

    panel.tfScaleMaxVal.setHidden(true);
    EXPECT_FALSE(row->isVisible());
    panel.tfScaleMaxVal.setHidden(false);

    EXPECT_TRUE(row->isVisible());
    EXPECT_TRUE(field->isVisible());
}

TEST_F(FormBuilder, ShowsTheLabelOfADisabledRowDisabled)
{
    auto& panel = panels.vwResizePhotos.dvVCUiScaleMaxView;
    const QWidget* form = build(panel);
    const QWidget* row = form->findChild<QWidget*>(panel.tfScaleMaxVal.name())->parentWidget();

    panel.tfScaleMaxVal.setEnabled(false);

    EXPECT_FALSE(row->findChild<QLabel*>()->isEnabled());
}

TEST_F(FormBuilder, ShowsOnlyThePageOfTheSelectedTab)
{
    auto& panel = panels.vwWatermark;
    const QWidget* form = build(panel);
    const auto* text = form->findChild<QWidget*>(panel.tvWaterMarkText.name());
    EXPECT_TRUE(text->isVisible());

    panel.tbvWatermarkType.selectIndex(1);

    EXPECT_FALSE(text->isVisible());
}

TEST_F(FormBuilder, FillsAHolderAnewWhenItsViewsChange)
{
    auto& holder = panels.vwResizePhotos.dvVCUiResizeMainView;
    const QWidget* form = build(panels.vwResizePhotos);
    EXPECT_TRUE(form->findChild<QWidget*>(u"tfScaleMaxVal"_s));

    holder.replaceViews(u"dvVCUiScaleFixView"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(form->findChild<QWidget*>(u"tfScaleMaxVal"_s));
    EXPECT_TRUE(form->findChild<QWidget*>(u"tfScaleFixWidth"_s)->isVisible());
}

TEST_F(FormBuilder, PutsABareControlIntoAHolderThatNamesOne)
{
    auto& holder = panels.window.dvVCUiMainPropertySelect;
    auto* place
        = new views::HolderView(holder, builder, views::FormBuilder::Density::Compact, &window);

    holder.replaceViews(u"pubEditPhoto"_s);

    EXPECT_TRUE(place->findChild<QWidget*>(u"pubEditPhoto"_s));
}
