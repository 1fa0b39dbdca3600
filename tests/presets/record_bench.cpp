// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/archives/bookmark.h>
#include <platform/archives/color_archive.h>
#include <platform/foundation/literals.h>

#include "support/text_printing.h"

#include <QDir>

namespace brenvaldo::test {

namespace {

constexpr int columns = 102;

QString colorText(const platform::graphics::Color& color)
{
    return u"%1 %2 %3"_s.arg(color.red).arg(color.green).arg(color.blue);
}

platform::archives::ColorComponents componentsOf(const QString& text)
{
    const QStringList parts = text.split(u' ');
    return {parts[0].toFloat(), parts[1].toFloat(), parts[2].toFloat()};
}

void selectTab(controls::TabView& tabs, const QString& label)
{
    for (int index = 0; index < tabs.tabs().size(); ++index) {
        if (tabs.tabs()[index].label == label)
            tabs.selectIndex(index);
    }
}

void giveColor(controls::ColorWell& well, const QString& text)
{
    const auto [red, green, blue] = componentsOf(text);
    well.setColor({.red = red, .green = green, .blue = blue});
}

/// A combo box that a record keeps by its item.
template <class Control>
auto* itemList(Control& control)
{
    using List = std::
        conditional_t<std::is_const_v<Control>, const controls::ComboBox, controls::ComboBox>;
    const QStringList names{u"cbFontList"_s, u"cbxPrefixMetaData"_s, u"cbxPostfixMetaData"_s};
    return names.contains(control.name()) ? dynamic_cast<List*>(&control) : nullptr;
}

} // namespace

Positions joined(Positions positions, const Positions& more)
{
    positions.insert(positions.end(), more.begin(), more.end());
    return positions;
}

RecordBench::RecordBench(const QString& id, const QString& process, const QString& action)
    : m_process(process)
    , m_action(action)
{
    function = id;
    QDir(file.folder().path()).mkdir(u"one"_s);
    QDir(file.folder().path()).mkdir(u"two"_s);
    panels.vwProfileConversion.pubInstalledICCProfiles.setTitles(
        {u"Adobe RGB"_s, u"Display P3"_s, u"Grey"_s, u"sRGB"_s}
    );
}

controls::Control& RecordBench::control(const QString& name) const
{
    controls::Control* const found = panels.control(name);
    if (!found)
        qFatal("no control is called %s", qPrintable(name));
    return *found;
}

void RecordBench::give(const QString& name, const QString& value)
{
    controls::Control& target = control(name);
    if (auto* text = dynamic_cast<controls::TextControl*>(&target))
        text->setStringValue(value);
    else if (auto* box = dynamic_cast<controls::CheckBox*>(&target))
        box->setState(value.toInt());
    else if (auto* items = itemList(target))
        items->selectItemWithObjectValue(value);
    else if (auto* list = dynamic_cast<controls::IndexedControl*>(&target))
        list->selectIndex(value.toInt());
    else if (auto* tabs = dynamic_cast<controls::TabView*>(&target))
        selectTab(*tabs, value);
    else if (auto* well = dynamic_cast<controls::ColorWell*>(&target))
        giveColor(*well, value);
    else if (auto* slider = dynamic_cast<controls::Slider*>(&target))
        slider->setDoubleValue(value.toDouble());
    ASSERT_EQ(read(name), value) << name.toStdString() << " can't have the value";
}

QString RecordBench::read(const QString& name) const
{
    const controls::Control& source = control(name);
    if (const auto* text = dynamic_cast<const controls::TextControl*>(&source))
        return text->stringValue();
    if (const auto* box = dynamic_cast<const controls::CheckBox*>(&source))
        return QString::number(box->state());
    if (const auto* items = itemList(source))
        return items->objectValueOfSelectedItem();
    if (const auto* list = dynamic_cast<const controls::IndexedControl*>(&source))
        return QString::number(list->selectedIndex());
    if (const auto* tabs = dynamic_cast<const controls::TabView*>(&source))
        return tabs->selectedLabel();
    if (const auto* well = dynamic_cast<const controls::ColorWell*>(&source))
        return colorText(well->color());
    if (const auto* slider = dynamic_cast<const controls::Slider*>(&source))
        return QString::number(slider->doubleValue(), 'f', 6);
    return {};
}

void RecordBench::give(const Positions& positions, Round round)
{
    for (const Position& position : positions)
        give(position.control, position.in(round));
}

QString RecordBench::otherValue(const Position& position, Round round) const
{
    if (dynamic_cast<const controls::CheckBox*>(&control(position.control)))
        return position.in(round) == u"1" ? u"0"_s : u"1"_s;
    return position.in(round == Round::First ? Round::Second : Round::First);
}

void RecordBench::giveOther(const Positions& positions, Round round)
{
    for (const Position& position : positions)
        give(position.control, otherValue(position, round));
}

void RecordBench::load(Round round, const Effects& effects)
{
    for (const Effect& effect : effects)
        control(effect.control).setEnabled(!effect.in(round));
    apply(round == Round::First ? 0 : 1);
    for (const Effect& effect : effects)
        EXPECT_EQ(control(effect.control).isEnabled(), effect.in(round))
            << effect.control.toStdString();
}

QString RecordBench::nameOf(Round round) { return round == Round::First ? u"A"_s : u"B"_s; }

QString RecordBench::storedFormOf(const QString& name, const QString& value) const
{
    if (dynamic_cast<const controls::ColorWell*>(&control(name)))
        return m_process == u"htmlExport"
            ? platform::archives::galleryColorArchive(componentsOf(value))
            : platform::archives::colorArchive(componentsOf(value));
    if (name == u"tfImageDestinationFolder" || name == u"tfWaterMarkImageFilePath"
        || name == u"tfBatchSortDestFolder" || name.startsWith(u"tfSortDestination"_s)) {
        const QString path = QDir::cleanPath(value);
        return QString::fromLatin1(
            platform::archives::bookmarkFor(path).value_or(QByteArray()).toBase64()
        );
    }
    return value;
}

void RecordBench::expectRow(Round round, const Positions& positions) const
{
    QStringList expected(columns, u""_s);
    expected[0] = nameOf(round);
    expected[1] = m_process;
    expected[2] = m_action;
    for (const Position& position : positions)
        expected[position.place] = storedFormOf(position.control, position.in(round));

    const QString query = u"select * from Presets where NameOfPreset = '%1'"_s.arg(nameOf(round));
    const QStringList rows = file.rows(query.toUtf8().constData());
    ASSERT_EQ(rows.size(), 1);
    const QStringList row = rows.first().split(u'|');
    for (int place = 0; place < columns; ++place)
        EXPECT_EQ(row.value(place + 1), expected[place]) << "StrField" << place;
}

void RecordBench::expectValues(Round round, const Positions& positions) const
{
    for (const Position& position : positions)
        EXPECT_EQ(read(position.control), position.in(round)) << position.control.toStdString();
}

void RecordBench::expectOther(Round round, const Positions& positions) const
{
    for (const Position& position : positions)
        EXPECT_EQ(read(position.control), otherValue(position, round))
            << position.control.toStdString();
}

void RecordBench::expectKept(const Positions& positions, const Effects& effects)
{
    for (const Round round : {Round::First, Round::Second}) {
        give(positions, round);
        saveRound(round);
        expectRow(round, positions);
    }
    for (const Round round : {Round::First, Round::Second}) {
        giveOther(positions, round);
        load(round, effects);
        expectValues(round, positions);
    }
}

Position RecordBench::destination() const
{
    return {
        3,
        u"tfImageDestinationFolder"_s,
        file.folder().path(u"one/"_s),
        file.folder().path(u"two/"_s)};
}

Positions RecordBench::commonPositions() const
{
    return {
        destination(),
        {21, u"pubPhotoOrientation"_s, u"1"_s, u"3"_s},
        {23, u"pubFileType"_s, u"6"_s, u"2"_s},
        {24, u"pubJPEGCompressionLevel"_s, u"8"_s, u"4"_s},
    };
}

} // namespace brenvaldo::test
