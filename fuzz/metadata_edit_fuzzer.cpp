// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/block_replacers.h>

#include <array>

using namespace brenvaldo::platform::metadata;

namespace {

constexpr std::array editors{
    editedJpeg,
    editedPng,
    editedTiffFile,
    editedJpeg2000,
    editedHeif,
};

const MetadataEdit& edit()
{
    static const MetadataEdit edit{
        .userComment = QStringLiteral("A comment"),
        .iptc
        = {{IptcKey::Keywords, {}},
           {IptcKey::Headline, {QStringLiteral("News")}},
           {IptcKey::CaptionAbstract, {QStringLiteral("A caption")}}}};
    return edit;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    for (const auto& edited : editors) {
        // What was written is read and written again.
        if (const auto pieces = edited(file, edit()))
            static_cast<void>(edited(pieces->join(), edit()));
    }
    return 0;
}
