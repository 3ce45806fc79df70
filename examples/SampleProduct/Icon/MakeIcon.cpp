// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Draws an SVG picture at the sizes of an application icon and writes them as one ICNS file.
// Usage: make_icon PICTURE.svg ICON.icns

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QSaveFile>
#include <QtEndian>

#include <array>
#include <cstdio>

namespace {

struct Entry {
    const char *type; // four characters
    int size;         // width and height in pixels
};

// The entries that hold PNG data; older ones have formats of their own.
constexpr std::array Entries = {Entry{"ic07", 128}, Entry{"ic08", 256}, Entry{"ic09", 512}};

// A chunk is its type, its length in bytes with these eight, and its data.
QByteArray chunk(const char *type, const QByteArray &data) {
    std::array<char, 4> length{};
    qToBigEndian(quint32(data.size() + 8), length.data());
    return QByteArray(type, 4) + QByteArray(length.data(), length.size()) + data;
}

// The picture as PNG data; empty when it cannot be drawn.
QByteArray drawn(const QString &picture, int size) {
    QImageReader reader(picture, "svg");
    reader.setScaledSize(QSize(size, size));
    QByteArray png;
    QBuffer buffer(&png);
    const QImage image = reader.read();
    if (image.isNull() || !image.save(&buffer, "PNG")) {
        std::fprintf(stderr, "make_icon: %s\n", qPrintable(reader.errorString()));
        return {};
    }
    return png;
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: make_icon PICTURE.svg ICON.icns\n", stderr);
        return 2;
    }
    QByteArray entries;
    for (const Entry &entry : Entries) {
        const QByteArray png = drawn(arguments[1], entry.size);
        if (png.isEmpty()) {
            return 1;
        }
        entries += chunk(entry.type, png);
    }
    QSaveFile file(arguments[2]);
    if (!file.open(QIODevice::WriteOnly) || file.write(chunk("icns", entries)) < 0 ||
        !file.commit()) {
        std::fprintf(stderr, "make_icon: %s\n", qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
