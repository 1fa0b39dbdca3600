// SPDX-License-Identifier: GPL-3.0-or-later
#include "property_tree.h"

#include <algorithm>

namespace brenvaldo::metadata {

namespace {

void appendRows(QList<QStringList>& rows, const QList<PropertyNode>& nodes, int depth)
{
    for (const PropertyNode& node : nodes) {
        rows.append(QStringList{QString::number(depth), node.key, node.val});
        appendRows(rows, node.children, depth + 1);
    }
}

} // namespace

bool operator==(const PropertyNode& left, const PropertyNode& right)
{
    return left.key == right.key && left.val == right.val && left.children == right.children;
}

QList<PropertyNode> propertyNodes(const platform::metadata::PropertyDictionary& properties)
{
    QStringList keys = properties.keys();
    std::sort(keys.begin(), keys.end());
    QList<PropertyNode> nodes;
    for (const QString& key : keys) {
        const platform::metadata::PropertyValue* value = properties.value(key);
        const platform::metadata::PropertyDictionary* children = value->dictionary();
        nodes.append(
            {.key = key,
             .val = children ? QString() : value->text(),
             .children = children ? propertyNodes(*children) : QList<PropertyNode>()}
        );
    }
    return nodes;
}

QList<QStringList> propertyRows(const QList<PropertyNode>& nodes)
{
    QList<QStringList> rows;
    appendRows(rows, nodes, 0);
    return rows;
}

} // namespace brenvaldo::metadata
