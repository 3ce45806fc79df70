// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A width or precision beyond this is a mistake in the format, not a wish.
constexpr int maximumFieldWidth = 1000;

const QString missingText = u"(null)"_s;

struct Placeholder {
    qsizetype argument = -1; // from 0; -1: the next one in order
    bool leftJustified = false;
    bool showSign = false;
    bool blankSign = false;
    bool alternate = false;
    bool zeroPadded = false;
    int width = 0;
    int precision = -1;
    char16_t conversion = 0;
};

QString quoted(const QString &text) {
    QString escaped = text;
    escaped.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u'"' + escaped + u'"';
}

} // namespace

QString ZTFormatArgument::describe(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QStringList items;
        for (const QVariant &item : value.toList())
            items << describe(item);
        return u'(' + items.join(u", "_s) + u')';
    }
    case QMetaType::QVariantMap: {
        QString text = u"{"_s;
        const QVariantMap dictionary = value.toMap();
        for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry)
            text += quoted(entry.key()) + u" = "_s + describe(entry.value()) + u"; "_s;
        return text + u'}';
    }
    default:
        return quoted(value.toString());
    }
}

// Walks a format once and builds the text.
class ZTFormatter {
public:
    ZTFormatter(const QString &format, std::initializer_list<ZTFormatArgument> arguments)
        : m_format(format)
        , m_arguments(arguments) {}

    QString text() {
        QString result;
        while (m_position < m_format.size()) {
            const qsizetype percent = m_format.indexOf(u'%', m_position);
            if (percent < 0)
                break;
            result += QStringView(m_format).mid(m_position, percent - m_position);
            m_position = percent + 1;
            if (const auto placeholder = readPlaceholder()) {
                result += placeholder->conversion == u'%' ? u"%"_s : replacement(*placeholder);
            } else {
                result += u'%';
                m_position = percent + 1;
            }
        }
        return result += QStringView(m_format).mid(m_position);
    }

private:
    char16_t peek() const {
        return m_position < m_format.size() ? m_format.at(m_position).unicode() : u'\0';
    }

    int readNumber() {
        int number = 0;
        for (; peek() >= u'0' && peek() <= u'9'; ++m_position)
            number = std::min(maximumFieldWidth, number * 10 + (peek() - u'0'));
        return number;
    }

    void readFlags(Placeholder &placeholder) {
        for (;; ++m_position) {
            switch (peek()) {
            case u'-':
                placeholder.leftJustified = true;
                break;
            case u'+':
                placeholder.showSign = true;
                break;
            case u' ':
                placeholder.blankSign = true;
                break;
            case u'#':
                placeholder.alternate = true;
                break;
            case u'0':
                placeholder.zeroPadded = true;
                break;
            default:
                return;
            }
        }
    }

    std::optional<Placeholder> readPlaceholder() {
        Placeholder placeholder;
        const qsizetype start = m_position;
        const int position = readNumber();
        if (position > 0 && peek() == u'$') {
            placeholder.argument = position - 1;
            ++m_position;
        } else {
            m_position = start;
        }
        readFlags(placeholder);
        placeholder.width = readNumber();
        if (peek() == u'.') {
            ++m_position;
            placeholder.precision = readNumber();
        }
        while (QStringView(u"hlqzjtL").contains(peek()) && peek() != u'\0')
            ++m_position;
        placeholder.conversion = peek();
        if (placeholder.conversion == u'\0' ||
            !QStringView(u"@sSdiuxXocCfFeEgG%").contains(placeholder.conversion))
            return std::nullopt;
        ++m_position;
        return placeholder;
    }

    QString replacement(const Placeholder &placeholder) {
        const qsizetype index = placeholder.argument >= 0 ? placeholder.argument : m_nextArgument++;
        if (index >= m_arguments.size())
            return missingText;
        const auto &value = m_arguments.at(index).m_value;
        if (const auto *text = std::get_if<QString>(&value)) {
            return padded(placeholder.precision >= 0 ? text->left(placeholder.precision) : *text,
                          placeholder);
        }
        if (const auto *number = std::get_if<qint64>(&value))
            return signedText(*number, placeholder);
        if (const auto *number = std::get_if<quint64>(&value))
            return unsignedText(*number, placeholder, {});
        if (const auto *number = std::get_if<double>(&value))
            return realText(*number, placeholder);
        return padded(missingText, placeholder);
    }

    static QString signOf(bool negative, const Placeholder &placeholder) {
        if (negative)
            return u"-"_s;
        if (placeholder.showSign)
            return u"+"_s;
        return placeholder.blankSign ? u" "_s : QString();
    }

    static QString signedText(qint64 number, const Placeholder &placeholder) {
        switch (placeholder.conversion) {
        case u'x':
        case u'X':
        case u'o':
            // As in the C library, bases other than ten show a negative number's bits. Values of
            // 32 bits keep to eight digits.
            return number < 0 && number >= std::numeric_limits<qint32>::min()
                       ? unsignedText(static_cast<quint32>(number), placeholder, {})
                       : unsignedText(static_cast<quint64>(number), placeholder, {});
        case u'f':
        case u'F':
        case u'e':
        case u'E':
        case u'g':
        case u'G':
            return realText(static_cast<double>(number), placeholder);
        default:
            break;
        }
        const quint64 magnitude =
            number < 0 ? ~static_cast<quint64>(number) + 1 : static_cast<quint64>(number);
        return unsignedText(magnitude, placeholder, signOf(number < 0, placeholder));
    }

    static QString unsignedText(quint64 number, const Placeholder &placeholder,
                                const QString &sign) {
        switch (placeholder.conversion) {
        case u'c':
        case u'C': {
            const auto scalar = static_cast<char32_t>(number);
            return padded(QString::fromUcs4(&scalar, 1), placeholder);
        }
        case u'f':
        case u'F':
        case u'e':
        case u'E':
        case u'g':
        case u'G':
            return realText(static_cast<double>(number), placeholder);
        default:
            break;
        }
        int base = 10;
        QString prefix;
        if (placeholder.conversion == u'x' || placeholder.conversion == u'X') {
            base = 16;
            if (placeholder.alternate && number != 0)
                prefix = u"0x"_s;
        } else if (placeholder.conversion == u'o') {
            base = 8;
            if (placeholder.alternate && number != 0)
                prefix = u"0"_s;
        }
        QString digits = QString::number(number, base);
        if (placeholder.precision >= 0)
            digits = digits.rightJustified(placeholder.precision, u'0');
        if (placeholder.zeroPadded && !placeholder.leftJustified && placeholder.precision < 0)
            digits = digits.rightJustified(placeholder.width - sign.size() - prefix.size(), u'0');
        digits = prefix + digits;
        if (placeholder.conversion == u'X')
            digits = digits.toUpper();
        return padded(sign + digits, placeholder);
    }

    static QString realText(double number, const Placeholder &placeholder) {
        char letter = 'f';
        if (QStringView(u"eEgGfF").contains(placeholder.conversion)) {
            letter = static_cast<char>(placeholder.conversion);
        } else if (QStringView(u"@s").contains(placeholder.conversion)) {
            letter = 'g';
        }
        const int precision = placeholder.precision >= 0 ? placeholder.precision : 6;
        QString digits = QString::number(number, letter, precision);
        const bool negative = digits.startsWith(u'-');
        if (negative)
            digits.remove(0, 1);
        const QString sign = signOf(negative, placeholder);
        if (placeholder.zeroPadded && !placeholder.leftJustified)
            digits = digits.rightJustified(placeholder.width - sign.size(), u'0');
        return padded(sign + digits, placeholder);
    }

    static QString padded(const QString &text, const Placeholder &placeholder) {
        return placeholder.leftJustified ? text.leftJustified(placeholder.width)
                                         : text.rightJustified(placeholder.width);
    }

    QString m_format;
    QList<ZTFormatArgument> m_arguments;
    qsizetype m_position = 0;
    qsizetype m_nextArgument = 0;
};

QString ZTFormatList(QAnyStringView format, std::initializer_list<ZTFormatArgument> arguments) {
    return ZTFormatter(format.toString(), arguments).text();
}
