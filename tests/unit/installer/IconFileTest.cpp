// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/IconFile.h"

#include <QBuffer>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class IconFileTest : public testing::Test {
protected:
    QString write(const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    static QByteArray png(int size, const QColor &color) {
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(color);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
    }
    static QByteArray bigEndian(qsizetype number) {
        QByteArray bytes(4, '\0');
        qToBigEndian(static_cast<quint32>(number), bytes.data());
        return bytes;
    }
    static QByteArray icns(const QList<std::pair<QByteArray, QByteArray>> &entries) {
        QByteArray body;
        for (const auto &[type, data] : entries)
            body += type + bigEndian(data.size() + 8) + data;
        return "icns" + bigEndian(body.size() + 8) + body;
    }
    static QColor middleOf(const QIcon &icon, int size) {
        return icon.pixmap(size, size).toImage().pixelColor(size / 2, size / 2);
    }

    QTemporaryDir folder;
};

TEST_F(IconFileTest, aContainersSizesAreUsedUpToALargeEnoughOne) {
    const QString path = write(u"a.icns"_s, icns({{"icp5", png(32, Qt::green)},
                                                  {"ic07", png(128, Qt::red)},
                                                  {"ic08", png(256, Qt::blue)}}));
    const auto icon = loadIcon(path);
    ASSERT_TRUE(icon);
    EXPECT_EQ(middleOf(*icon, 32), QColor(Qt::green));
    EXPECT_EQ(middleOf(*icon, 128), QColor(Qt::red));
    EXPECT_EQ(icon->availableSizes().size(), 2);
}

TEST_F(IconFileTest, entriesThatCannotBeReadAreSkipped) {
    const QString path =
        write(u"a.icns"_s, icns({{"ic08", QByteArray(200, 'x')}, {"ic07", png(128, Qt::red)}}));
    const auto icon = loadIcon(path);
    ASSERT_TRUE(icon);
    EXPECT_EQ(middleOf(*icon, 128), QColor(Qt::red));
}

TEST_F(IconFileTest, aContainerWithAWrongLengthGivesWhatStandsBeforeIt) {
    QByteArray container = icns({{"ic07", png(64, Qt::red)}, {"ic08", png(256, Qt::blue)}});
    const qsizetype second = container.indexOf("ic08");
    for (const qsizetype length : {0, 7, 0x7fffffff}) {
        container.replace(second + 4, 4, bigEndian(length));
        const auto icon = loadIcon(write(u"a.icns"_s, container));
        ASSERT_TRUE(icon) << length;
        EXPECT_EQ(icon->availableSizes(), QList{QSize(64, 64)}) << length;
    }
}

TEST_F(IconFileTest, aContainerThatEndsTooSoonHasNoIcon) {
    const QByteArray container = icns({{"ic07", png(64, Qt::red)}});
    for (const qsizetype length : {4, 7, 8, 15, 16, 40})
        EXPECT_FALSE(loadIcon(write(u"a.icns"_s, container.first(length)))) << length;
}

TEST_F(IconFileTest, aDrawingIsSharpAtEverySize) {
    const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">"
                               "<rect width=\"8\" height=\"8\" fill=\"#00ff00\"/></svg>";
    for (const QString &name : {u"a.svg"_s, u"drawing without a suffix"_s}) {
        const auto icon = loadIcon(write(name, drawing));
        ASSERT_TRUE(icon) << name.toStdString();
        EXPECT_EQ(icon->pixmap(256, 256).size(), QSize(256, 256)) << name.toStdString();
        EXPECT_EQ(middleOf(*icon, 256), QColor(Qt::green)) << name.toStdString();
    }
}

TEST_F(IconFileTest, anImageIsKnownByItsContentNotItsName) {
    const auto icon = loadIcon(write(u"a.icns"_s, png(32, Qt::red)));
    ASSERT_TRUE(icon);
    EXPECT_EQ(middleOf(*icon, 32), QColor(Qt::red));
}

TEST_F(IconFileTest, aVeryLargeImageIsMadeSmaller) {
    const auto icon = loadIcon(write(u"a.png"_s, png(2000, Qt::red)));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->availableSizes().first(), QSize(512, 512));
}

TEST_F(IconFileTest, whatIsNoImageIsNoIcon) {
    EXPECT_FALSE(loadIcon(folder.filePath(u"missing.png"_s)));
    EXPECT_FALSE(loadIcon(folder.path()));
    EXPECT_FALSE(loadIcon(write(u"empty.png"_s, "")));
    EXPECT_FALSE(loadIcon(write(u"text.svg"_s, "not a drawing")));
    EXPECT_FALSE(loadIcon(write(u"cut.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\"><re")));
    EXPECT_FALSE(loadIcon(write(u"cut.png"_s, png(32, Qt::red).left(40))));
    EXPECT_FALSE(loadIcon(write(u"cut.icns"_s, icns({{"ic07", png(128, Qt::red)}}).left(60))));
}
