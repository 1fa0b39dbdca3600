// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/metadata/property_dictionary.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace brenvaldo::metadata {

/// One property; a dictionary has children and an empty value.
struct PropertyNode
{
    QString key;
    QString val;
    QList<PropertyNode> children;

    friend bool operator==(const PropertyNode& left, const PropertyNode& right);
};

/// The nodes of `properties` sorted by their keys, code unit by code unit.
[[nodiscard]] QList<PropertyNode>
propertyNodes(const platform::metadata::PropertyDictionary& properties);

/// The nodes from the top down as rows of depth, key and value.
[[nodiscard]] QList<QStringList> propertyRows(const QList<PropertyNode>& nodes);

} // namespace brenvaldo::metadata
