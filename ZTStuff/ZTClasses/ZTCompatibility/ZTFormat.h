#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts made from a format with placeholders and a list of typed values.

#include <QAnyStringView>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <concepts>
#include <initializer_list>
#include <optional>
#include <variant>

// One value for a placeholder. A missing text or object prints as "(null)".
class ZTFormatArgument {
public:
    ZTFormatArgument(std::nullopt_t) {}
    ZTFormatArgument(const QString &text) : m_value(text) {}
    ZTFormatArgument(const char *utf8) {
        if (utf8)
            m_value = QString::fromUtf8(utf8);
    }
    template <typename T>
    requires std::convertible_to<T, ZTFormatArgument>
    ZTFormatArgument(const std::optional<T> &value) {
        if (value)
            m_value = ZTFormatArgument(*value).m_value;
    }
    // A list prints as ("one", "two").
    ZTFormatArgument(const QStringList &list) : m_value(describe(list)) {}
    // A dictionary prints as {"key" = "value"; "other" = ("one", "two"); }, keys in order.
    ZTFormatArgument(const QVariantMap &dictionary) : m_value(describe(dictionary)) {}
    ZTFormatArgument(bool truth) : m_value(qint64(truth)) {}
    ZTFormatArgument(std::signed_integral auto number) : m_value(qint64(number)) {}
    ZTFormatArgument(std::unsigned_integral auto number) : m_value(quint64(number)) {}
    ZTFormatArgument(std::floating_point auto number) : m_value(double(number)) {}

private:
    friend class ZTFormatter;
    static QString describe(const QVariant &value);

    std::variant<std::monostate, QString, qint64, quint64, double> m_value;
};

// The format with each placeholder replaced by its argument. Placeholders are those of the C
// library's printf with "%@" for a text or object in addition, and may name their argument by
// position ("%2$@"): %@ %s %d %i %u %x %X %o %c %f %e %g with flags, width, precision and length
// ("%02x", "%1.3f", "%ld"); "%%" is a percent sign. Lengths are accepted and not needed: a value
// knows its own type, and one that does not fit its placeholder prints in its natural form. An
// argument that is not there prints as "(null)"; arguments too many are ignored; a percent sign
// that begins no placeholder stays. Numbers always print with a decimal point. Thread: any.
QString ZTFormatList(QAnyStringView format, std::initializer_list<ZTFormatArgument> arguments);

// The same with the arguments one by one: ZTFormat("%@ %1.1f", name, delay).
template <typename... Arguments>
QString ZTFormat(QAnyStringView format, const Arguments &...arguments) {
    return ZTFormatList(format, {ZTFormatArgument(arguments)...});
}
