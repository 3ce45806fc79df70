// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/BundleFileTypes.h"

#include <QMap>
#include <QMimeDatabase>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// A value that is a list of strings, or one string.
QStringList stringsOf(const QVariant &value) {
    if (value.metaType() == QMetaType::fromType<QString>())
        return {value.toString()};
    QStringList strings;
    for (const QVariant &item : value.toList()) {
        if (item.metaType() == QMetaType::fromType<QString>())
            strings << item.toString();
    }
    return strings;
}

// A declared kind of content: what files of it are called on disk and in messages.
struct ContentType {
    QStringList mimeTypes;
    QStringList suffixes;
    QString description;
};

using ContentTypes = QMap<QString, ContentType>;

// The identifiers that every system declares by itself, as far as documents of people have them.
ContentTypes systemContentTypes() {
    const auto only = [](const char *mimeType) {
        return ContentType{{QString::fromLatin1(mimeType)}, {}, {}};
    };
    return {{u"public.plain-text"_s, only("text/plain")},
            {u"public.text"_s, only("text/plain")},
            {u"public.utf8-plain-text"_s, only("text/plain")},
            {u"public.html"_s, only("text/html")},
            {u"public.xml"_s, only("application/xml")},
            {u"public.json"_s, only("application/json")},
            {u"public.rtf"_s, only("application/rtf")},
            {u"com.adobe.pdf"_s, only("application/pdf")},
            {u"public.png"_s, only("image/png")},
            {u"public.jpeg"_s, only("image/jpeg")},
            {u"public.tiff"_s, only("image/tiff")},
            {u"com.compuserve.gif"_s, only("image/gif")},
            {u"public.svg-image"_s, only("image/svg+xml")},
            {u"public.mp3"_s, only("audio/mpeg")},
            {u"public.mpeg-4"_s, only("video/mp4")},
            {u"public.zip-archive"_s, only("application/zip")},
            {u"public.comma-separated-values-text"_s, only("text/csv")},
            {u"net.daringfireball.markdown"_s, only("text/markdown")}};
}

void addDeclared(ContentTypes &types, const QVariant &declarations) {
    for (const QVariant &item : declarations.toList()) {
        const QVariantMap declaration = item.toMap();
        ContentType type;
        type.description = declaration.value(u"UTTypeDescription"_s).toString();
        for (const QVariant &value : declaration) { // one of them holds the tags
            const QVariantMap tags = value.toMap();
            type.mimeTypes << stringsOf(tags.value(u"public.mime-type"_s));
            type.suffixes << stringsOf(tags.value(u"public.filename-extension"_s));
        }
        types.insert(declaration.value(u"UTTypeIdentifier"_s).toString(), type);
    }
}

void addOnce(std::vector<std::string> &list, const QString &item) {
    std::string text = item.toStdString();
    if (std::find(list.begin(), list.end(), text) == list.end())
        list.push_back(std::move(text));
}

// Letters, digits and a few signs, as the names of types and of suffixes have them.
bool isPlainName(const QString &text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || u".-_+"_s.contains(c);
    });
}

bool isMimeType(const QString &text) {
    const QStringList halves = text.split(u'/');
    return halves.size() == 2 && isPlainName(halves.first()) && isPlainName(halves.last());
}

class FileTypes {
public:
    explicit FileTypes(ApplicationRecord &record) : m_record(record) {}

    void addType(const QString &mimeType) {
        const QString type = mimeType.toLower();
        if (isMimeType(type))
            addOnce(m_record.mimeTypes, type);
    }

    // The type that the desktop knows for the suffix, else a new one.
    void addSuffix(QString suffix, const QString &description) {
        if (suffix.startsWith(u'.'))
            suffix.remove(0, 1);
        if (!isPlainName(suffix))
            return; // such as "*", for files of all kinds
        const QMimeType known = m_database.mimeTypeForFile(u"name."_s + suffix.toLower(),
                                                           QMimeDatabase::MatchExtension);
        if (!known.isDefault()) {
            addType(known.name());
            return;
        }
        const QString newType = u"application/x-%1-%2"_s.arg(
            QString::fromStdString(m_record.identifier).toLower(), suffix.toLower());
        addType(newType);
        m_record.newFileTypes.push_back({newType.toStdString(),
                                         description.simplified().left(200).toStdString(),
                                         {suffix.toStdString()}});
    }

private:
    ApplicationRecord &m_record;
    QMimeDatabase m_database;
};

void addDocumentType(FileTypes &types, const QVariantMap &document, const ContentTypes &known) {
    if (document.value(u"CFBundleTypeRole"_s).toString() == u"None"_s)
        return;
    QString description = document.value(u"CFBundleTypeName"_s).toString();
    QStringList mimeTypes = stringsOf(document.value(u"CFBundleTypeMIMETypes"_s));
    QStringList suffixes = stringsOf(document.value(u"CFBundleTypeExtensions"_s));
    for (const QString &identifier : stringsOf(document.value(u"LSItemContentTypes"_s))) {
        const ContentType type = known.value(identifier);
        mimeTypes << type.mimeTypes;
        if (type.mimeTypes.isEmpty())
            suffixes << type.suffixes;
        if (description.isEmpty())
            description = type.description;
    }
    for (const QString &type : mimeTypes)
        types.addType(type);
    // With its types given, the suffixes of a document say nothing more.
    if (mimeTypes.isEmpty()) {
        for (const QString &suffix : suffixes)
            types.addSuffix(suffix, description);
    }
}

} // namespace

void addFileTypes(ApplicationRecord &record, const QVariantMap &information) {
    ContentTypes known = systemContentTypes();
    addDeclared(known, information.value(u"UTImportedTypeDeclarations"_s));
    addDeclared(known, information.value(u"UTExportedTypeDeclarations"_s));
    FileTypes types(record);
    for (const QVariant &document : information.value(u"CFBundleDocumentTypes"_s).toList())
        addDocumentType(types, document.toMap(), known);
    for (const QVariant &item : information.value(u"NSTypes"_s).toList()) {
        const QVariantMap document = item.toMap();
        for (const QString &suffix : stringsOf(document.value(u"NSUnixExtensions"_s)))
            types.addSuffix(suffix, document.value(u"NSHumanReadableName"_s).toString());
    }
    for (const QVariant &item : information.value(u"CFBundleURLTypes"_s).toList()) {
        for (const QString &scheme : stringsOf(item.toMap().value(u"CFBundleURLSchemes"_s)))
            types.addType(u"x-scheme-handler/"_s + scheme);
    }
}

} // namespace zt
