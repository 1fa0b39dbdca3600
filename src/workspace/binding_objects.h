// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <mutex>
#include <utility>

namespace brenvaldo::workspace {

/// A number that a control may be bound to.
class MyModel
{
public:
    [[nodiscard]] double floatValue() const { return m_floatValue; }
    void setFloatValue(double value) { m_floatValue = value; }

private:
    double m_floatValue = 0;
};

/// Holds the model that is bound; it may be read and exchanged from any thread.
class MyObjectControler
{
public:
    [[nodiscard]] std::shared_ptr<MyModel> myModelObj() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_model;
    }

    void setMyModelObj(std::shared_ptr<MyModel> model)
    {
        const std::scoped_lock lock(m_mutex);
        m_model = std::move(model);
    }

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<MyModel> m_model;
};

} // namespace brenvaldo::workspace
