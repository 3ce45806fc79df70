// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/PropertyList.h"

#include "Platform/linux/OldPropertyListReader.h"
#include "Platform/linux/PropertyListBinary.h"
#include "Platform/linux/PropertyListLimits.h"
#include "Platform/linux/PropertyListXml.h"

#include <QFile>
#include <QStringDecoder>

#include <cstdio>
#include <memory>

#include <sys/stat.h> // stat

namespace zt {

namespace {

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

Result<QByteArray> readContent(const QByteArray &path) {
    // Opening a pipe or a device could wait for ever.
    struct stat status = {};
    if (stat(path.constData(), &status) != 0)
        return Error::fromErrno("read", path.toStdString());
    if (!S_ISREG(status.st_mode))
        return Error{.operation = "read", .object = path.toStdString(), .cause = "not a file"};

    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.constData(), "rbe"));
    if (!file)
        return Error::fromErrno("open", path.toStdString());
    QByteArray content;
    QByteArray buffer(65536, Qt::Uninitialized);
    while (content.size() <= maximumPropertyListSize) {
        const auto capacity = static_cast<std::size_t>(buffer.size());
        const std::size_t count = std::fread(buffer.data(), 1, capacity, file.get());
        content.append(buffer.constData(), static_cast<qsizetype>(count));
        if (count < capacity)
            break;
    }
    if (std::ferror(file.get()) != 0)
        return Error::fromErrno("read", path.toStdString());
    return content;
}

// The encoding that the content's first bytes tell; the old form and XML both begin with an ASCII
// character, so UTF-16 shows without a byte order mark too.
std::optional<QStringConverter::Encoding> encodingOf(const QByteArray &content) {
    if (const auto marked = QStringConverter::encodingForData(content))
        return marked;
    if (content.size() < 2)
        return std::nullopt;
    if (content[0] == '\0' && content[1] != '\0')
        return QStringConverter::Utf16BE;
    if (content[0] != '\0' && content[1] == '\0')
        return QStringConverter::Utf16LE;
    return std::nullopt;
}

// A file without a mark that is not UTF-8 comes from before Unicode.
QString textFromContent(const QByteArray &content) {
    const auto encoding = encodingOf(content);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder.decode(content);
    if (!encoding && decoder.hasError())
        return QString::fromLatin1(content);
    return text;
}

// The old form can begin with '<' as well: data does.
bool isXml(QStringView text) {
    const QStringView start = text.trimmed().left(6);
    return start.startsWith(u"<?") || start.startsWith(u"<!") || start == u"<plist" ||
           start.startsWith(u"<dict");
}

} // namespace

Result<QVariant> parsePropertyList(const QByteArray &content) {
    if (content.size() > maximumPropertyListSize)
        return propertyListError("it is too large");
    if (content.startsWith("bplist"))
        return parseBinaryPropertyList(content);
    const QString text = textFromContent(content);
    return isXml(text) ? parseXmlPropertyList(content) : parseOldPropertyList(text);
}

Result<QVariant> readPropertyList(const QString &path) {
    const QByteArray encodedPath = QFile::encodeName(path);
    Result<QByteArray> content = readContent(encodedPath);
    if (!content)
        return content.error();
    Result<QVariant> value = parsePropertyList(*content);
    if (value)
        return value;
    Error error = value.error();
    error.object = encodedPath.toStdString();
    return error;
}

} // namespace zt
