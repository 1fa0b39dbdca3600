// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace brenvaldo::platform::metadata {

class PropertyValue;

/// Named values in the order in which they were added; a plain value type.
class PropertyDictionary
{
public:
    /// Adds the value, or replaces that of the key.
    void insert(const QString& key, const PropertyValue& value);

    [[nodiscard]] bool isEmpty() const { return m_keys.isEmpty(); }
    [[nodiscard]] const QStringList& keys() const { return m_keys; }
    [[nodiscard]] bool contains(const QString& key) const { return m_keys.contains(key); }

    /// Null when there is no such key.
    [[nodiscard]] const PropertyValue* value(const QString& key) const;

    /// The value when it is a dictionary; null otherwise.
    [[nodiscard]] const PropertyDictionary* dictionary(const QString& key) const;

    /// The value as text, as `PropertyValue::text`; nothing when there is no such key.
    [[nodiscard]] std::optional<QString> text(const QString& key) const;

    friend bool operator==(const PropertyDictionary& left, const PropertyDictionary& right);

private:
    QStringList m_keys;
    QList<PropertyValue> m_values;
};

/// One value of a property dictionary.
class PropertyValue
{
public:
    using Array = QList<PropertyValue>;

    PropertyValue(qint64 value); // NOLINT(google-explicit-constructor): a value is what it holds
    PropertyValue(int value); // NOLINT(google-explicit-constructor)
    PropertyValue(double value); // NOLINT(google-explicit-constructor)
    PropertyValue(bool value); // NOLINT(google-explicit-constructor)
    PropertyValue(const QString& value); // NOLINT(google-explicit-constructor)
    PropertyValue(const Array& value); // NOLINT(google-explicit-constructor)
    PropertyValue(const PropertyDictionary& value); // NOLINT(google-explicit-constructor)

    /// The value of that kind; null when it is of another.
    [[nodiscard]] const QString* string() const { return std::get_if<QString>(&m_value); }
    [[nodiscard]] const Array* array() const { return std::get_if<Array>(&m_value); }
    [[nodiscard]] const PropertyDictionary* dictionary() const
    {
        return std::get_if<PropertyDictionary>(&m_value);
    }

    /// The number that an integer, a double or a boolean holds; nothing for other kinds.
    [[nodiscard]] std::optional<double> number() const;

    /// The value as "%@" prints it: strings and numbers plain, booleans as 1 and 0, arrays and
    /// dictionaries over several lines with their strings quoted where needed.
    [[nodiscard]] QString text() const;

    friend bool operator==(const PropertyValue& left, const PropertyValue& right);

private:
    std::variant<qint64, double, bool, QString, Array, PropertyDictionary> m_value;
};

} // namespace brenvaldo::platform::metadata
