// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEncodings.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsHtml.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/fuzz/FuzzText.h"

#include <sys/mman.h>
#include <unistd.h>

using namespace StringExtensions;

namespace {

// A file in memory with this content; it has a path.
QString fileWith(const std::uint8_t *data, std::size_t size) {
    static const int descriptor = ::memfd_create("text", 0);
    require(::ftruncate(descriptor, 0) == 0);
    require(::pwrite(descriptor, data, size, 0) == static_cast<ssize_t>(size));
    return QStringLiteral("/proc/self/fd/%1").arg(descriptor);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static FakePlatform platform;
    platform.log.clear();
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));

    const QString macRoman = stringWithMacRomanCString(reinterpret_cast<const char *>(data),
                                                       static_cast<std::int32_t>(size));
    require(dataUsingEncoding(macRoman, StringEncoding::MacOSRoman) == bytes);
    require(dataUsingEncoding(*stringWithData(bytes, StringEncoding::ISOLatin1),
                              StringEncoding::ISOLatin1) == bytes);
    for (const StringEncoding encoding :
         {StringEncoding::UTF8, StringEncoding::UTF16BigEndian, StringEncoding::UTF16LittleEndian,
          StringEncoding::UTF32BigEndian, StringEncoding::UTF32LittleEndian,
          StringEncoding::Unicode, StringEncoding{8}, StringEncoding{21},
          StringEncoding{0x80000632}, StringEncoding{0x84000100}}) {
        // What was text once stays the same text from then on.
        const std::optional<QString> text = stringWithData(bytes, encoding);
        const std::optional<QByteArray> again =
            text ? dataUsingEncoding(*text, encoding) : std::nullopt;
        const bool isMarked = text && text->startsWith(QChar(0xFEFF));
        require(!again || isMarked || stringWithData(*again, encoding) == text);
    }

    require(!stringWithHTML(bytes).isNull() || size == 0);
    const QString path = fileWith(data, size);
    const std::optional<QString> best = stringWithBestEncodingFromFile(path);
    require(best.has_value() || size == 0);
    explicitEncodingOfFile(path, StringEncoding::None);
    return 0;
}
