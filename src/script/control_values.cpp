// SPDX-License-Identifier: GPL-3.0-or-later
#include "control_values.h"

#include "arguments.h"

#include <controls/image_view.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <QRegularExpression>

#include <cmath>

namespace brenvaldo::script {

namespace {

QString refusal(const QString& word, const controls::Control& control)
{
    return u"\"%1\" is no value of %2"_s.arg(word, control.name());
}

QStringList labels(const controls::TabView& tabs)
{
    QStringList labels;
    for (const auto& tab : tabs.tabs())
        labels.append(tab.label);
    return labels;
}

std::optional<platform::graphics::Color> colorNamedBy(const QString& word)
{
    static const QRegularExpression sixHexDigits(u"\\A[0-9A-Fa-f]{6}\\z"_s);
    if (!sixHexDigits.match(word).hasMatch())
        return std::nullopt;
    const auto component
        = [&](qsizetype position) { return word.mid(position, 2).toInt(nullptr, 16) / 255.0; };
    return platform::graphics::Color{
        .red = component(0), .green = component(2), .blue = component(4)};
}

QString nameOf(const platform::graphics::Color& color)
{
    QString name;
    for (const double component : {color.red, color.green, color.blue}) {
        const auto level = std::lround(component * 255);
        name += u"%1"_s.arg(level, 2, 16, QLatin1Char('0')).toUpper();
    }
    return name;
}

std::optional<double> numberNamedBy(const QString& word)
{
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return std::nullopt;
    return number;
}

/// Calls `visitor` with the control as the first of the kinds that it is; `otherwise` for none.
template <class Kind, class... Kinds, class ControlType, class Visitor, class Result>
Result visited(ControlType& control, const Visitor& visitor, const Result& otherwise)
{
    if (auto* found = dynamic_cast<Kind*>(&control))
        return visitor(*found);
    if constexpr (sizeof...(Kinds) > 0)
        return visited<Kinds...>(control, visitor, otherwise);
    else
        return otherwise;
}

struct ValueGiver
{
    const QString& word;
    const controls::UserInput& user;

    Misunderstanding operator()(controls::TextControl& field) const
    {
        user.type(field, word);
        return std::nullopt;
    }
    Misunderstanding operator()(controls::CheckBox& box) const
    {
        const auto state = flag(word);
        if (!state)
            return refusal(word, box);
        user.tick(box, *state);
        return std::nullopt;
    }
    Misunderstanding operator()(controls::PopUpButton& list) const
    {
        return pick(list, itemOf(list.titles(), word));
    }
    Misunderstanding operator()(controls::ComboBox& list) const
    {
        return pick(list, itemOf(list.titles(), word));
    }
    Misunderstanding operator()(controls::IndexedControl& segments) const
    {
        return pick(segments, indexBelow(segments.count(), word));
    }
    Misunderstanding operator()(controls::TabView& tabs) const
    {
        return pick(tabs, itemOf(labels(tabs), word));
    }
    Misunderstanding operator()(controls::ColorWell& well) const
    {
        const auto color = colorNamedBy(word);
        if (!color)
            return refusal(word, well);
        user.choose(well, *color);
        return std::nullopt;
    }
    Misunderstanding operator()(controls::Slider& slider) const
    {
        const auto value = numberNamedBy(word);
        if (!value)
            return refusal(word, slider);
        user.drag(slider, *value);
        return std::nullopt;
    }

private:
    template <class List>
    Misunderstanding pick(List& list, std::optional<int> index) const
    {
        if (!index)
            return refusal(word, list);
        user.pick(list, *index);
        return std::nullopt;
    }
};

struct ValueReader
{
    QStringList operator()(const controls::TextControl& field) const
    {
        return {field.stringValue()};
    }
    QStringList operator()(const controls::CheckBox& box) const
    {
        return {QString::number(box.state())};
    }
    QStringList operator()(const controls::PopUpButton& list) const
    {
        return {QString::number(list.selectedIndex()), list.selectedTitle()};
    }
    QStringList operator()(const controls::ComboBox& list) const
    {
        return {QString::number(list.selectedIndex()), list.selectedTitle()};
    }
    QStringList operator()(const controls::IndexedControl& segments) const
    {
        return {QString::number(segments.selectedIndex())};
    }
    QStringList operator()(const controls::TabView& tabs) const { return {tabs.selectedLabel()}; }
    QStringList operator()(const controls::ColorWell& well) const { return {nameOf(well.color())}; }
    QStringList operator()(const controls::Slider& slider) const
    {
        return {platform::numberText(slider.doubleValue())};
    }
    QStringList operator()(const controls::ProgressIndicator& bar) const
    {
        return {platform::numberText(bar.doubleValue())};
    }
    QStringList operator()(const controls::TableView& table) const
    {
        return {QString::number(table.selectedRow())};
    }
    QStringList operator()(const controls::ImageView& view) const
    {
        return {view.image() ? u"image"_s : QString()};
    }
    QStringList operator()(const controls::Button& button) const { return {button.image()}; }
    QStringList operator()(const controls::Holder& holder) const
    {
        return {holder.views().join(u' ')};
    }
    QStringList operator()(const controls::Sheet& sheet) const
    {
        return {sheet.isOpen() ? u"opened"_s : u"closed"_s};
    }
};

} // namespace

Misunderstanding
giveValue(controls::Control& control, const QString& word, const controls::UserInput& user)
{
    using namespace controls;
    return visited<
        TextControl,
        CheckBox,
        PopUpButton,
        ComboBox,
        IndexedControl,
        TabView,
        ColorWell,
        Slider>(
        control,
        ValueGiver{word, user},
        Misunderstanding(u"%1 takes no value"_s.arg(control.name()))
    );
}

QStringList valueFields(const controls::Control& control)
{
    using namespace controls;
    return visited<
        const TextControl,
        const CheckBox,
        const PopUpButton,
        const ComboBox,
        const IndexedControl,
        const TabView,
        const ColorWell,
        const Slider,
        const ProgressIndicator,
        const TableView,
        const ImageView,
        const Button,
        const Holder,
        const Sheet>(control, ValueReader(), QStringList());
}

} // namespace brenvaldo::script
