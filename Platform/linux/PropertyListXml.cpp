// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PropertyListXml.h"

#include "Platform/linux/PropertyListLimits.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>
#include <QVariantMap>
#include <QXmlStreamReader>

#include <optional>
#include <utility>
#include <vector>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

// Builds the value while the elements go by; the open containers are kept on a stack of its own,
// so that nesting never becomes recursion.
class XmlPropertyListReader {
public:
    explicit XmlPropertyListReader(const QByteArray &content) : m_xml(content) {}

    Result<QVariant> read();

private:
    struct Container {
        bool isDictionary = false;
        QVariantMap dictionary;
        QVariantList array;
        std::optional<QString> key; // the key that waits for its value
    };

    void startElement();
    void endElement();
    void add(QVariant value);
    void readKey();
    void readScalar(QStringView name);
    void refuse(const QString &reason);

    QXmlStreamReader m_xml;
    std::vector<Container> m_open;
    std::optional<QVariant> m_root;
    bool m_hasPlistElement = false;
};

Result<QVariant> XmlPropertyListReader::read() {
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::DTD:
            // An entity can stand for a long text of further entities; no property list has any.
            if (!m_xml.entityDeclarations().isEmpty())
                refuse(u"entities are declared"_s);
            break;
        case QXmlStreamReader::EntityReference:
            refuse(u"an unknown entity is used"_s);
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace())
                refuse(u"text outside of a value"_s);
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError())
        return propertyListError(m_xml.errorString().toStdString(), m_xml.lineNumber());
    if (!m_root)
        return propertyListError("it holds no value", m_xml.lineNumber());
    return *std::move(m_root);
}

void XmlPropertyListReader::startElement() {
    const QStringView name = m_xml.name();
    if (name == "plist"_L1) {
        if (std::exchange(m_hasPlistElement, true) || !m_open.empty() || m_root)
            refuse(u"a property list inside of another"_s);
        return;
    }
    if (name == "key"_L1) {
        readKey();
        return;
    }
    if (name != "dict"_L1 && name != "array"_L1) {
        readScalar(name);
        return;
    }
    if (m_open.size() >= maximumPropertyListDepth) {
        refuse(u"values are nested too deeply"_s);
        return;
    }
    m_open.push_back({.isDictionary = name == "dict"_L1, .dictionary = {}, .array = {}, .key = {}});
}

void XmlPropertyListReader::endElement() {
    if (m_open.empty())
        return; // the end of <plist>; the ends of scalars and keys were read with their text
    const Container closed = std::move(m_open.back());
    m_open.pop_back();
    if (closed.key) {
        refuse(u"the key \"%1\" has no value"_s.arg(*closed.key));
    } else if (closed.isDictionary) {
        add(closed.dictionary);
    } else {
        add(closed.array);
    }
}

void XmlPropertyListReader::add(QVariant value) {
    if (m_open.empty()) {
        if (m_root)
            refuse(u"more than one value"_s);
        m_root = std::move(value);
        return;
    }
    Container &container = m_open.back();
    if (!container.isDictionary) {
        container.array.append(std::move(value));
    } else if (container.key) {
        container.dictionary.insert(*container.key, value);
        container.key.reset();
    } else {
        refuse(u"a value without a key"_s);
    }
}

void XmlPropertyListReader::readKey() {
    if (m_open.empty() || !m_open.back().isDictionary || m_open.back().key) {
        refuse(u"a key that is out of place"_s);
        return;
    }
    m_open.back().key = m_xml.readElementText();
}

std::optional<QVariant> integerFromText(const QString &text) {
    const QString digits = text.trimmed();
    bool ok = false;
    const bool hexadecimal = digits.startsWith("0x"_L1, Qt::CaseInsensitive);
    const qlonglong value = hexadecimal ? digits.toLongLong(&ok, 16) : digits.toLongLong(&ok, 10);
    return ok ? std::optional(QVariant(value)) : std::nullopt;
}

std::optional<QVariant> realFromText(const QString &text) {
    bool ok = false;
    const double value = QLocale::c().toDouble(text.trimmed(), &ok);
    return ok ? std::optional(QVariant(value)) : std::nullopt;
}

std::optional<QVariant> dateFromText(const QString &text) {
    const QString trimmed = text.trimmed();
    const QDateTime date = QDateTime::fromString(trimmed, Qt::ISODate);
    if (!date.isValid() || !trimmed.endsWith(u'Z'))
        return std::nullopt;
    return QVariant(date.toUTC());
}

std::optional<QVariant> dataFromText(const QString &text) {
    QByteArray digits = text.toLatin1();
    digits.removeIf([](char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); });
    auto decoded =
        QByteArray::fromBase64Encoding(std::move(digits), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(QVariant(*decoded)) : std::nullopt;
}

std::optional<QVariant> scalarFromText(const QString &name, const QString &text) {
    if (name == "string"_L1)
        return QVariant(text);
    if (name == "integer"_L1)
        return integerFromText(text);
    if (name == "real"_L1)
        return realFromText(text);
    if (name == "date"_L1)
        return dateFromText(text);
    if (name == "data"_L1)
        return dataFromText(text);
    if ((name == "true"_L1 || name == "false"_L1) && text.trimmed().isEmpty())
        return QVariant(name == "true"_L1);
    return std::nullopt;
}

void XmlPropertyListReader::readScalar(QStringView name) {
    const QString element = name.toString();
    const QString text = m_xml.readElementText();
    if (m_xml.hasError())
        return;
    std::optional<QVariant> value = scalarFromText(element, text);
    if (!value) {
        refuse(u"not a value: <%1>%2"_s.arg(element, text.left(40)));
        return;
    }
    add(*std::move(value));
}

void XmlPropertyListReader::refuse(const QString &reason) {
    // The first error is the one that counts: the later ones follow from it.
    if (!m_xml.hasError())
        m_xml.raiseError(reason);
}

} // namespace

Result<QVariant> parseXmlPropertyList(const QByteArray &content) {
    return XmlPropertyListReader(content).read();
}

} // namespace zt
