// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <memory>

namespace brenvaldo::platform::metadata {

/// The values of an XMP packet; none when the packet is empty or damaged.
class XmpValues
{
public:
    explicit XmpValues(const QByteArray& packet);
    XmpValues(const XmpValues&) = delete;
    XmpValues& operator=(const XmpValues&) = delete;
    XmpValues(XmpValues&&) = delete;
    XmpValues& operator=(XmpValues&&) = delete;
    ~XmpValues();

    /// The texts of a property such as "Xmp.dc.subject": one each element of a bag or a sequence,
    /// the default language of an alternative, or the single value. Empty when it is not there.
    [[nodiscard]] QStringList texts(const QByteArray& key) const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace brenvaldo::platform::metadata
