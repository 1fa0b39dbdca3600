// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QList>

#include <optional>

namespace brenvaldo::platform::metadata {

struct XmlAttribute
{
    QByteArrayView name; ///< with its prefix
    QByteArrayView value; ///< as it stands between the quotes
    QByteArrayView whole; ///< with the blanks in front
};

/// An element of an XML document: views into it.
struct XmlElement
{
    QByteArrayView name; ///< with its prefix
    QList<XmlAttribute> attributes;
    QByteArrayView startTag;
    QByteArrayView whole; ///< up to the end of its end tag
    qsizetype parent = -1; ///< index of the element around it; -1 for the root

    [[nodiscard]] bool isEmptyTag() const { return startTag.size() == whole.size(); }
};

/// All elements of a document in UTF-8, in the order of their start tags. Nothing when it is not
/// well-formed, or declares entities of its own.
[[nodiscard]] std::optional<QList<XmlElement>> xmlElements(QByteArrayView document);

} // namespace brenvaldo::platform::metadata
