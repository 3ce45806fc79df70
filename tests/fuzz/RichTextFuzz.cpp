// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/AttributedDocument.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// Text documents need an application with fonts; it lives as long as the process.
void ensureApplication() {
    static int argumentCount = 1;
    static char name[] = "rich_text";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto *application = new QGuiApplication(argumentCount, arguments);
    Q_UNUSED(application)
}

} // namespace

// The library of fonts keeps what it has learnt until the process ends; that is no leak of ours.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the leak checker looks for this name.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    ensureApplication();
    // Any bytes are rich text once they begin like it.
    QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (!content.startsWith("{\\rtf"))
        content.prepend("{\\rtf1 ");

    const auto document = AttributedDocument::fromContent(content, {}, {});
    constexpr qreal width = 540;
    document->setTextWidth(width);
    const bool isLaidOut = document->size().height() > 0;
    if (!isLaidOut || document->toRawText().contains(QChar(0)) ||
        document->blockCount() > 2 * maximumShownParagraphs)
        std::abort();
    return 0;
}
