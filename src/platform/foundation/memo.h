// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>

#include <mutex>

namespace brenvaldo::platform {

/// Keeps the values of a pure function, so that each is computed once. Any thread.
template <class Key, class Value>
class Memo
{
public:
    /// The value of `key`, which `make(key)` computes at the first time.
    template <class Make>
    [[nodiscard]] Value value(const Key& key, const Make& make)
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_values.constFind(key);
        return found != m_values.constEnd() ? *found : *m_values.insert(key, make(key));
    }

private:
    std::mutex m_mutex;
    QHash<Key, Value> m_values;
};

} // namespace brenvaldo::platform
