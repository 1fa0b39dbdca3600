// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_well_handling.h"

#include "hex_text.h"
#include "ns_color_handling.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace brenvaldo::imaging {

using platform::graphics::Color;

namespace {

constexpr qsizetype hexDigits = 6;

/// Wells by the tag of the hex field; a tag without a well has an empty name.
constexpr std::array<std::u16string_view, 24> wellsByFieldTag{
    u"ascNSColorWellObjBGCt",
    u"ascNSColorWellObjTCt",
    u"ascNSColorWellObjBGCc",
    u"",
    u"ascNSColorWellObjBsImage",
    u"ascNSColorWellObjBbImage",
    u"ascNSColorWellObjPhotoNameCt",
    u"ascNSColorWellAddTint",
    u"myNSColorWellObjFraming",
    u"ascNSColorWellObjRCbackground",
    u"ascNSColorWellObjRCborder",
    u"ascNSColorWellObjThumbnail",
    u"ascNSColorWellObjThumbnailShadow",
    u"ascNSColorWellObjSsDescriptionTextColor",
    u"ascNSColorWellObjSsCaptionTextColor",
    u"ascNSColorWellObjSsBackgroundColor",
    u"ascNSColorWellObjRGBackgroundColor",
    u"ascNSColorWellObjRGDescriptionColor",
    u"ascNSColorWellObjRgMetaDataColor",
    u"ascNSColorWellObjSsDotColor",
    u"ascNSColorWellObjRDLightboxBgColor",
    u"ascNSColorWellObjRGLightboxBgColor",
    u"ascNSColorWellObjMonochrome",
    u"cwRotationBackgroundColor",
};

/// Hex fields by the tag of the well.
constexpr std::array<std::u16string_view, 16> fieldsByWellTag{
    u"tfNSColorWellObjBGCt",
    u"tfNSColorWellObjBGCc",
    u"tfNSColorWellObjBCc",
    u"tfNSColorWellObjTCt",
    u"tfNSColorWellObjPhotoNameCt",
    u"tfNSColorWellObjUserExifCommentCt",
    u"tfNSColorWellObjBsImage",
    u"tfNSColorWellObjThumbnail",
    u"tfNSColorWellObjThumbnailShadow",
    u"tfNSColorWellObjBbImage",
    u"tfNSColorWellObjLightBox",
    u"tfNSColorWellObjLightBoxShadow",
    u"tfNSColorWellObjRDLightboxBgColor",
    u"tfNSColorWellObjRGLightboxBgColor",
    u"tfRotationBackgroundHexColor",
    u"tfRCBackgroundHexColor",
};

template <std::size_t size>
QString nameAt(const std::array<std::u16string_view, size>& names, int tag)
{
    if (tag < 0 || static_cast<std::size_t>(tag) >= size)
        return {};
    return QStringView(names[static_cast<std::size_t>(tag)]).toString();
}

bool isHexDigit(QChar unit)
{
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f')
        || (unit >= u'A' && unit <= u'F');
}

/// The hexadecimal digits at the start of `text`, after one optional "#" and white space.
QString leadingHexDigits(const QString& text)
{
    const qsizetype hash = text.startsWith(u'#') ? 1 : 0;
    const auto first = std::find_if_not(text.begin() + hash, text.end(), [](QChar unit) {
        return unit.isSpace();
    });
    const auto last = std::find_if_not(first, text.end(), isHexDigit);
    return QString(first, last - first);
}

} // namespace

QString colorWellOfHexField(int tag) { return nameAt(wellsByFieldTag, tag); }

QString hexFieldOfColorWell(int tag) { return nameAt(fieldsByWellTag, tag); }

cColorWellHandling::cColorWellHandling(const panels::Panels& panels)
    : m_panels(panels)
{
}

QString cColorWellHandling::getHEXValue(const Color& color) { return hexText(color); }

std::optional<Color> cColorWellHandling::setHEXValue(const QString& text, controls::ColorWell& well)
{
    const QString digits = leadingHexDigits(text);
    if (digits.size() != hexDigits)
        return std::nullopt;
    const auto number = platform::scanHexInt(digits);
    if (!number)
        return std::nullopt;

    const HexBytes bytes = hexBytes(*number);
    const Color color{
        .red = bytes.red / 255.0, .green = bytes.green / 255.0, .blue = bytes.blue / 255.0};
    well.setColor(color);
    return color;
}

void cColorWellHandling::registerActions(controls::ActionRegistry& actions) const
{
    const QString className = u"cColorWellHandling"_s;
    const auto edited = [handling = *this](const controls::Sender& sender) {
        if (const auto* field = dynamic_cast<const controls::TextControl*>(sender.control))
            handling.controlTextDidEndEditing(*field);
    };
    const auto changed = [handling = *this](const controls::Sender& sender) {
        if (const auto* well = dynamic_cast<const controls::ColorWell*>(sender.control))
            handling.hCallHEXfromColorwell(*well);
    };
    actions.add(className, u"controlTextDidEndEditing"_s, edited);
    actions.add(className, u"hCallHEXfromColorwell"_s, changed);
}

void cColorWellHandling::controlTextDidEndEditing(const controls::TextControl& field) const
{
    auto* well
        = dynamic_cast<controls::ColorWell*>(m_panels.control(colorWellOfHexField(field.tag())));
    if (well)
        well->setColor(cNSColorHandling::colorFromHexToRGB(field.stringValue()));
}

void cColorWellHandling::hCallHEXfromColorwell(const controls::ColorWell& well) const
{
    auto* field
        = dynamic_cast<controls::TextControl*>(m_panels.control(hexFieldOfColorWell(well.tag())));
    if (field)
        field->setStringValue(getHEXValue(well.color()));
}

} // namespace brenvaldo::imaging
