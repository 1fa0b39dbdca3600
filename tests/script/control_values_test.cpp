// SPDX-License-Identifier: GPL-3.0-or-later
#include <script/control_values.h>

#include <controls/image_view.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace brenvaldo;
using namespace brenvaldo::controls;
using namespace brenvaldo::script;

namespace {

using ControlMaker = std::function<std::unique_ptr<Control>()>;

ControlMaker popUp()
{
    return [] {
        return std::make_unique<PopUpButton>(u"pub"_qs, QStringList{u"1"_qs, u"2"_qs, u"9"_qs});
    };
}

ControlMaker segments()
{
    return [] {
        return std::make_unique<SegmentedControl>(u"sc"_qs, QStringList{u"L"_qs, u"R"_qs});
    };
}

ControlMaker tabs()
{
    return [] {
        return std::make_unique<TabView>(
            u"tbv"_qs, QList<TabView::Tab>{{u"1"_qs, u"Text"_qs}, {u"2"_qs, u"Image"_qs}}
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

constexpr auto nameOfRow = [](const auto& row) { return std::string(row.param.name); };

/// A control whose actions are counted.
struct WatchedControl
{
    explicit WatchedControl(std::unique_ptr<Control> made)
        : control(std::move(made))
    {
        actions.add(u"cTest"_qs, u"changed"_qs, [this](const Sender&) { ++sent; });
        control->addAction(u"cTest.changed"_qs);
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
        Given{"TextField", plain<TextField>(u"tf"_qs), u"12 px"_qs, {u"12 px"_qs}},
        Given{"TextFieldMadeEmpty", plain<TextField>(u"tf"_qs, u"a"_qs), QString(), {QString()}},
        Given{"TextView", plain<TextView>(u"tv"_qs), u"a\nb"_qs, {u"a\nb"_qs}},
        Given{"TickedBox", plain<CheckBox>(u"cb"_qs), u"1"_qs, {u"1"_qs}},
        Given{"UntickedBox", plain<CheckBox>(u"cb"_qs, u"Title"_qs, 1), u"0"_qs, {u"0"_qs}},
        Given{"ItemByIndex", popUp(), u"1"_qs, {u"1"_qs, u"2"_qs}},
        Given{"ItemByMarkedTitle", popUp(), u"=2"_qs, {u"1"_qs, u"2"_qs}},
        Given{
            "ComboBoxByTitle",
            plain<ComboBox>(u"cb"_qs, QStringList{u"Sans"_qs, u"Serif"_qs}),
            u"Serif"_qs,
            {u"1"_qs, u"Serif"_qs}},
        Given{"Segment", segments(), u"1"_qs, {u"1"_qs}},
        Given{
            "MatrixRow",
            plain<Matrix>(u"mx"_qs, QStringList{u"a"_qs, u"b"_qs}),
            u"1"_qs,
            {u"1"_qs}},
        Given{"TabByLabel", tabs(), u"Image"_qs, {u"Image"_qs}},
        Given{"TabByIndex", tabs(), u"1"_qs, {u"Image"_qs}},
        Given{"Color", plain<ColorWell>(u"cw"_qs), u"0a80FF"_qs, {u"0A80FF"_qs}},
        Given{"Slider", plain<Slider>(u"sl"_qs, 0.0, 10.0, 1.0), u"2.5"_qs, {u"2.5"_qs}},
        Given{"SliderBeyondItsEnd", plain<Slider>(u"sl"_qs, 0.0, 10.0, 1.0), u"12"_qs, {u"10"_qs}}
    ),
    nameOfRow
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
        Refused{"BoxStateTwo", plain<CheckBox>(u"cb"_qs), u"2"_qs, u"\"2\" is no value of cb"_qs},
        Refused{"UnknownItem", popUp(), u"ten"_qs, u"\"ten\" is no value of pub"_qs},
        Refused{"TitleThatLooksLikeAnIndex", popUp(), u"9"_qs, u"\"9\" is no value of pub"_qs},
        Refused{"ItemIndexBeyondTheLast", popUp(), u"3"_qs, u"\"3\" is no value of pub"_qs},
        Refused{"NoItem", popUp(), u"-1"_qs, u"\"-1\" is no value of pub"_qs},
        Refused{"SegmentByTitle", segments(), u"R"_qs, u"\"R\" is no value of sc"_qs},
        Refused{"SegmentBeyondTheLast", segments(), u"2"_qs, u"\"2\" is no value of sc"_qs},
        Refused{"UnknownTab", tabs(), u"Sound"_qs, u"\"Sound\" is no value of tbv"_qs},
        Refused{
            "ShortColor", plain<ColorWell>(u"cw"_qs), u"FFF"_qs, u"\"FFF\" is no value of cw"_qs},
        Refused{
            "ColorOfOtherLetters",
            plain<ColorWell>(u"cw"_qs),
            u"00000G"_qs,
            u"\"00000G\" is no value of cw"_qs},
        Refused{
            "SliderText",
            plain<Slider>(u"sl"_qs, 0.0, 10.0, 1.0),
            u"half"_qs,
            u"\"half\" is no value of sl"_qs},
        Refused{"Bar", plain<ProgressIndicator>(u"bar"_qs), u"1"_qs, u"bar takes no value"_qs},
        Refused{"ImageView", plain<ImageView>(u"iv"_qs), u"1"_qs, u"iv takes no value"_qs}
    ),
    nameOfRow
);

TEST(ValueFields, TellTheStateOfControlsThatTakeNoValue)
{
    ArrayController rows(u"rows"_qs, {u"name"_qs});
    rows.setObjects({{u"a"_qs}, {u"b"_qs}});
    TableView table(u"table"_qs, rows);
    table.selectRow(1);
    ImageView view(u"view"_qs);
    Sheet sheet(u"sheet"_qs);
    Holder holder(u"holder"_qs);
    holder.addView(u"vwA"_qs);

    EXPECT_EQ(valueFields(table), QStringList{u"1"_qs});
    EXPECT_EQ(valueFields(view), QStringList{QString()});
    EXPECT_EQ(valueFields(sheet), QStringList{u"closed"_qs});
    EXPECT_EQ(valueFields(holder), QStringList{u"vwA"_qs});

    view.setImage(platform::graphics::Image::fromQImage(QImage(3, 2, QImage::Format_RGB32)));
    sheet.open();

    EXPECT_EQ(valueFields(view), QStringList{u"image"_qs});
    EXPECT_EQ(valueFields(sheet), QStringList{u"opened"_qs});
}
