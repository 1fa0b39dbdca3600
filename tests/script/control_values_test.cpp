// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <script/control_values.h>

#include <controls/image_view.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace brenvaldo;
using namespace brenvaldo::controls;
using namespace brenvaldo::script;
using brenvaldo::test::CaseName;

namespace {

using ControlMaker = std::function<std::unique_ptr<Control>()>;

ControlMaker popUp()
{
    return [] {
        return std::make_unique<PopUpButton>(u"pub"_s, QStringList{u"1"_s, u"2"_s, u"9"_s});
    };
}

ControlMaker segments()
{
    return [] { return std::make_unique<SegmentedControl>(u"sc"_s, QStringList{u"L"_s, u"R"_s}); };
}

ControlMaker tabs()
{
    return [] {
        return std::make_unique<TabView>(
            u"tbv"_s, QList<TabView::Tab>{{u"1"_s, u"Text"_s}, {u"2"_s, u"Image"_s}}
        );
    };
}

template <class ControlType, class... Arguments>
ControlMaker plain(const QString& name, Arguments... arguments)
{
    return [=] { return std::make_unique<ControlType>(name, arguments...); };
}

struct Given
{
    const char* name;
    ControlMaker control;
    QString word;
    QStringList fields; ///< the value that is shown afterwards
};

void PrintTo(const Given& row, std::ostream* out) { *out << row.name; }

struct Refused
{
    const char* name;
    ControlMaker control;
    QString word;
    QString reason;
};

void PrintTo(const Refused& row, std::ostream* out) { *out << row.name; }

/// A control whose actions are counted.
struct WatchedControl
{
    explicit WatchedControl(std::unique_ptr<Control> made)
        : control(std::move(made))
    {
        actions.add(u"cTest"_s, u"changed"_s, [this](const Sender&) { ++sent; });
        control->addAction(u"cTest.changed"_s);
    }

    std::unique_ptr<Control> control;
    ActionRegistry actions;
    UserInput user{actions};
    int sent = 0;
};

} // namespace

class GiveValue : public testing::TestWithParam<Given>
{
};

TEST_P(GiveValue, SetsTheValueAndSendsTheAction)
{
    WatchedControl watched(GetParam().control());

    const auto misunderstanding = giveValue(*watched.control, GetParam().word, watched.user);

    EXPECT_EQ(misunderstanding, std::nullopt);
    EXPECT_EQ(valueFields(*watched.control), GetParam().fields);
    EXPECT_EQ(watched.sent, 1);
}

TEST_P(GiveValue, ReachesDisabledAndHiddenControls)
{
    WatchedControl watched(GetParam().control());
    watched.control->setEnabled(false);
    watched.control->setHidden(true);

    const auto misunderstanding = giveValue(*watched.control, GetParam().word, watched.user);

    EXPECT_EQ(misunderstanding, std::nullopt);
    EXPECT_EQ(valueFields(*watched.control), GetParam().fields);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    GiveValue,
    testing::Values(
        Given{"TextField", plain<TextField>(u"tf"_s), u"12 px"_s, {u"12 px"_s}},
        Given{"TextFieldMadeEmpty", plain<TextField>(u"tf"_s, u"a"_s), QString(), {QString()}},
        Given{"TextView", plain<TextView>(u"tv"_s), u"a\nb"_s, {u"a\nb"_s}},
        Given{"TickedBox", plain<CheckBox>(u"cb"_s), u"1"_s, {u"1"_s}},
        Given{"UntickedBox", plain<CheckBox>(u"cb"_s, u"Title"_s, 1), u"0"_s, {u"0"_s}},
        Given{"ItemByIndex", popUp(), u"1"_s, {u"1"_s, u"2"_s}},
        Given{"ItemByMarkedTitle", popUp(), u"=2"_s, {u"1"_s, u"2"_s}},
        Given{
            "ComboBoxByTitle",
            plain<ComboBox>(u"cb"_s, QStringList{u"Sans"_s, u"Serif"_s}),
            u"Serif"_s,
            {u"1"_s, u"Serif"_s}},
        Given{"Segment", segments(), u"1"_s, {u"1"_s}},
        Given{"MatrixRow", plain<Matrix>(u"mx"_s, QStringList{u"a"_s, u"b"_s}), u"1"_s, {u"1"_s}},
        Given{"TabByLabel", tabs(), u"Image"_s, {u"Image"_s}},
        Given{"TabByIndex", tabs(), u"1"_s, {u"Image"_s}},
        Given{"Color", plain<ColorWell>(u"cw"_s), u"0a80FF"_s, {u"0A80FF"_s}},
        Given{"Slider", plain<Slider>(u"sl"_s, 0.0, 10.0, 1.0), u"2.5"_s, {u"2.5"_s}},
        Given{"SliderBeyondItsEnd", plain<Slider>(u"sl"_s, 0.0, 10.0, 1.0), u"12"_s, {u"10"_s}}
    ),
    CaseName()
);

class RefuseValue : public testing::TestWithParam<Refused>
{
};

TEST_P(RefuseValue, ChangesNothingAndSaysWhy)
{
    WatchedControl watched(GetParam().control());
    const QStringList before = valueFields(*watched.control);

    const auto misunderstanding = giveValue(*watched.control, GetParam().word, watched.user);

    EXPECT_EQ(misunderstanding, GetParam().reason);
    EXPECT_EQ(valueFields(*watched.control), before);
    EXPECT_EQ(watched.sent, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    RefuseValue,
    testing::Values(
        Refused{"BoxStateTwo", plain<CheckBox>(u"cb"_s), u"2"_s, u"\"2\" is no value of cb"_s},
        Refused{"UnknownItem", popUp(), u"ten"_s, u"\"ten\" is no value of pub"_s},
        Refused{"TitleThatLooksLikeAnIndex", popUp(), u"9"_s, u"\"9\" is no value of pub"_s},
        Refused{"ItemIndexBeyondTheLast", popUp(), u"3"_s, u"\"3\" is no value of pub"_s},
        Refused{"NoItem", popUp(), u"-1"_s, u"\"-1\" is no value of pub"_s},
        Refused{"SegmentByTitle", segments(), u"R"_s, u"\"R\" is no value of sc"_s},
        Refused{"SegmentBeyondTheLast", segments(), u"2"_s, u"\"2\" is no value of sc"_s},
        Refused{"UnknownTab", tabs(), u"Sound"_s, u"\"Sound\" is no value of tbv"_s},
        Refused{"ShortColor", plain<ColorWell>(u"cw"_s), u"FFF"_s, u"\"FFF\" is no value of cw"_s},
        Refused{
            "ColorOfOtherLetters",
            plain<ColorWell>(u"cw"_s),
            u"00000G"_s,
            u"\"00000G\" is no value of cw"_s},
        Refused{
            "SliderText",
            plain<Slider>(u"sl"_s, 0.0, 10.0, 1.0),
            u"half"_s,
            u"\"half\" is no value of sl"_s},
        Refused{"Bar", plain<ProgressIndicator>(u"bar"_s), u"1"_s, u"bar takes no value"_s},
        Refused{"ImageView", plain<ImageView>(u"iv"_s), u"1"_s, u"iv takes no value"_s}
    ),
    CaseName()
);

TEST(ValueFields, TellTheStateOfControlsThatTakeNoValue)
{
    ArrayController rows(u"rows"_s, {u"name"_s});
    rows.setObjects({{u"a"_s}, {u"b"_s}});
    TableView table(u"table"_s, rows);
    table.selectRow(1);
    ImageView view(u"view"_s);
    Sheet sheet(u"sheet"_s);
    Holder holder(u"holder"_s);
    holder.addView(u"vwA"_s);

    EXPECT_EQ(valueFields(table), QStringList{u"1"_s});
    EXPECT_EQ(valueFields(view), QStringList{QString()});
    EXPECT_EQ(valueFields(sheet), QStringList{u"closed"_s});
    EXPECT_EQ(valueFields(holder), QStringList{u"vwA"_s});

    view.setImage(platform::graphics::Image::fromQImage(QImage(3, 2, QImage::Format_RGB32)));
    sheet.open();

    EXPECT_EQ(valueFields(view), QStringList{u"image"_s});
    EXPECT_EQ(valueFields(sheet), QStringList{u"opened"_s});
}
