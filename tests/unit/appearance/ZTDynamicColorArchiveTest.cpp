// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <QDataStream>
#include <QIODevice>

using namespace Qt::StringLiterals;

namespace {

const QColor light(1, 2, 3, 4);
const QColor dark(50, 60, 70);

class ZTDynamicColorArchiveTest : public AppearanceTest {};

struct Entry {
    QByteArray key;
    QByteArray className;
    QByteArray content;
};

// The archive of any entries, and with any beginning.
QByteArray archiveOf(const QList<Entry> &entries, quint32 mark = 0x5a544443, quint16 version = 1) {
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << mark << version;
    for (const Entry &entry : entries)
        stream << entry.key << entry.className << entry.content;
    return data;
}

// A colour as bytes, with any numbers.
QByteArray content(qint8 space, quint16 alpha, quint16 first, quint16 second, quint16 third,
                   quint16 fourth) {
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << space << alpha << first << second << third << fourth;
    return data;
}

const QByteArray red = content(QColor::Rgb, 0xffff, 0xffff, 0, 0, 0);
const QByteArray blue = content(QColor::Rgb, 0xffff, 0, 0, 0xffff, 0);

} // namespace

TEST_F(ZTDynamicColorArchiveTest, bothColorsAreKeptAndTheFlagIsLeftOut) {
    const auto color = ZTDynamicColor::lightColor(light, dark, GlobalAppearance::Used);
    QVariantMap coder;
    color.encodeWithCoder(coder);
    EXPECT_EQ(coder, (QVariantMap{{u"aquaColor"_s, light}, {u"darkAquaColor"_s, dark}}));
    const auto restored = ZTDynamicColor::initWithCoder(coder);
    ASSERT_TRUE(restored);
    EXPECT_EQ(*restored, ZTDynamicColor::lightColor(light, dark));
    EXPECT_EQ(ZTDynamicColor::unarchivedColor(color.archivedData()), restored);
    EXPECT_TRUE(ZTDynamicColor::supportsSecureCoding());
}

TEST_F(ZTDynamicColorArchiveTest, aColorWithoutADarkOneHasNoKeyForIt) {
    const auto color = ZTDynamicColor::lightColor(light, std::nullopt);
    QVariantMap coder;
    color.encodeWithCoder(coder);
    EXPECT_EQ(coder.keys(), QStringList{u"aquaColor"_s});
    EXPECT_EQ(ZTDynamicColor::initWithCoder(coder), color);
    EXPECT_EQ(ZTDynamicColor::unarchivedColor(color.archivedData()), color);
}

TEST_F(ZTDynamicColorArchiveTest, anArchiveAmongOtherThingsIsFound) {
    QVariantMap coder{{u"title"_s, u"A window"_s}};
    const auto color = ZTDynamicColor::lightColor(light, dark);
    color.encodeWithCoder(coder);
    EXPECT_EQ(ZTDynamicColor::initWithCoder(coder), color);
    EXPECT_EQ(coder.value(u"title"_s), u"A window"_s);
}

TEST_F(ZTDynamicColorArchiveTest, whatIsNoColorIsRefused) {
    const QVariantMap coders[] = {
        {},
        {{u"darkAquaColor"_s, dark}},
        {{u"aquaColor"_s, u"#ff0000"_s}},
        {{u"aquaColor"_s, QColor()}},
        {{u"aquaColor"_s, QVariant()}},
        {{u"aquaColor"_s, light}, {u"darkAquaColor"_s, 7}},
        {{u"aquaColor"_s, light}, {u"darkAquaColor"_s, QVariant()}},
        {{u"AquaColor"_s, light}},
    };
    for (const QVariantMap &coder : coders)
        EXPECT_EQ(ZTDynamicColor::initWithCoder(coder), std::nullopt) << coder.keys().size();
}

TEST_F(ZTDynamicColorArchiveTest, colorsOfEverySpaceComeBackExactly) {
    const QColor colors[] = {
        QColor(12, 34, 56, 78),
        QColor::fromRgba64(1, 2, 3, 4),
        QColor::fromHsv(359, 17, 211, 3),
        QColor::fromHsvF(-1, 0, 0.3F),
        QColor::fromHsl(0, 255, 128),
        QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F, 0.5F),
        QColor::fromRgbF(1.5F, -0.25F, 0.0F, 0.5F),
        QColor(Qt::transparent),
    };
    for (const QColor &color : colors) {
        const auto restored = ZTDynamicColor::unarchivedColor(
            ZTDynamicColor::lightColor(color, color.convertTo(QColor::ExtendedRgb)).archivedData());
        ASSERT_TRUE(restored) << color.name().toStdString();
        EXPECT_EQ(restored->aquaColor(), color);
        EXPECT_EQ(restored->darkAquaColor(), color.convertTo(QColor::ExtendedRgb));
    }
}

// So that archives of today are read tomorrow.
TEST_F(ZTDynamicColorArchiveTest, theBytesAreTheSameForEver) {
    const QByteArray kept =
        archiveOf({{"aquaColor", "QColor", red}, {"darkAquaColor", "QColor", blue}});
    EXPECT_EQ(ZTDynamicColor::lightColor(Qt::red, Qt::blue).archivedData(), kept);
    EXPECT_EQ(kept.size(), 86);
}

TEST_F(ZTDynamicColorArchiveTest, whatALaterVersionAddsIsPassedOver) {
    EXPECT_EQ(ZTDynamicColor::unarchivedColor(archiveOf({{"aquaColor", "QColor", red},
                                                         {"name", "QString", "anything"},
                                                         {"other", "QColor", "no color"}})),
              ZTDynamicColor::lightColor(Qt::red, std::nullopt));
}

TEST_F(ZTDynamicColorArchiveTest, tamperedArchivesAreRefused) {
    const QByteArray good = archiveOf({{"aquaColor", "QColor", red}});
    ASSERT_TRUE(ZTDynamicColor::unarchivedColor(good));
    const struct {
        const char *reason;
        QByteArray data;
    } rows[] = {
        {"empty", ""},
        {"another mark", archiveOf({{"aquaColor", "QColor", red}}, 0x5a544444)},
        {"another version", archiveOf({{"aquaColor", "QColor", red}}, 0x5a544443, 2)},
        {"nothing in it", archiveOf({})},
        {"a key twice", archiveOf({{"aquaColor", "QColor", red}, {"aquaColor", "QColor", red}})},
        {"another class", archiveOf({{"aquaColor", "QBrush", red}})},
        {"another class for the dark one",
         archiveOf({{"aquaColor", "QColor", red}, {"darkAquaColor", "QString", blue}})},
        {"more behind a colour", archiveOf({{"aquaColor", "QColor", red + '\0'}})},
        {"less than a colour", archiveOf({{"aquaColor", "QColor", red.chopped(1)}})},
        {"more behind the end", good + '\0'},
        {"a length without end", good + QByteArray("\x7f\xff\xff\xff", 4)},
        {"far too long",
         archiveOf({{"aquaColor", "QColor", red}, {"name", "QString", QByteArray(5000, 'x')}})},
        {"no space", archiveOf({{"aquaColor", "QColor", content(0, 0xffff, 0, 0, 0, 0)}})},
        {"a space beyond all",
         archiveOf({{"aquaColor", "QColor", content(6, 0xffff, 0, 0, 0, 0)}})},
        {"a negative space", archiveOf({{"aquaColor", "QColor", content(-1, 0xffff, 0, 0, 0, 0)}})},
        {"a blank that is none",
         archiveOf({{"aquaColor", "QColor", content(QColor::Rgb, 0xffff, 0, 0, 0, 1)}})},
        {"a hue beyond the circle",
         archiveOf({{"aquaColor", "QColor", content(QColor::Hsv, 0xffff, 36000, 0, 0, 0)}})},
        {"a component that is no number",
         archiveOf(
             {{"aquaColor", "QColor", content(QColor::ExtendedRgb, 0x3c00, 0x7e00, 0, 0, 0)}})},
        {"an infinite component",
         archiveOf(
             {{"aquaColor", "QColor", content(QColor::ExtendedRgb, 0x3c00, 0, 0xfc00, 0, 0)}})},
        {"more than opaque",
         archiveOf({{"aquaColor", "QColor", content(QColor::ExtendedRgb, 0x3c01, 0, 0, 0, 0)}})},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ZTDynamicColor::unarchivedColor(row.data), std::nullopt) << row.reason;
    for (qsizetype size = 0; size < good.size(); ++size)
        EXPECT_EQ(ZTDynamicColor::unarchivedColor(good.first(size)), std::nullopt) << size;
}
