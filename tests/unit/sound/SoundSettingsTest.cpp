// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/SoundSettings.h"
#include "Platform/PropertyList.h"

#include "tests/unit/sound/SoundFixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double beforeYosemite = 1300.0;

std::optional<QString> deviceIn(const char *settings, SoundSettingsForm form) {
    const zt::Result<QVariant> list = zt::parsePropertyList(settings);
    EXPECT_TRUE(list) << settings;
    return soundEffectDeviceInSettings(*list, form, u"501"_s);
}

TEST(SoundSettingsTest, theFirstDeviceOfTheUseIsTheOne) {
    const struct {
        const char *reason;
        const char *settings;
        std::optional<QString> device;
    } rows[] = {
        {"one device", R"({"preferred devices" = {"system output" = ({uid = one;});};})", u"one"_s},
        {"several devices",
         R"({"preferred devices" = {"system output" = ({uid = one;}, {uid = two;});};})", u"one"_s},
        {"an empty list", R"({"preferred devices" = {"system output" = ();};})", {}},
        {"no list", R"({"preferred devices" = {"system output" = {uid = one;};};})", {}},
        {"no dictionary in the list", R"({"preferred devices" = {"system output" = (one);};})", {}},
        {"no identifier", R"({"preferred devices" = {"system output" = ({name = one;});};})", {}},
        {"an identifier that is no text",
         R"({"preferred devices" = {"system output" = ({uid = (one);});};})",
         {}},
        {"another use", R"({"preferred devices" = {"output" = ({uid = one;});};})", {}},
        {"no uses", R"({"preferred devices" = one;})", {}},
        {"nothing", "{}", {}},
        {"no dictionary", "(one)", {}},
        {"the older form", R"({501 = {"current default system output device" = one;};})", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(deviceIn(row.settings, SoundSettingsForm::DevicesByUse), row.device)
            << row.reason;
}

TEST(SoundSettingsTest, theUsersOwnDeviceGoesBeforeThatOfAll) {
    const struct {
        const char *reason;
        const char *settings;
        std::optional<QString> device;
    } rows[] = {
        {"both",
         R"({501 = {"current default system output device" = own;};
             0 = {"current default system output device" = all;};})",
         u"own"_s},
        {"no entry of the user", R"({0 = {"current default system output device" = all;};})",
         u"all"_s},
        {"an entry of the user without a device",
         R"({501 = {other = x;}; 0 = {"current default system output device" = all;};})", u"all"_s},
        {"only another user's", R"({502 = {"current default system output device" = x;};})", {}},
        {"an entry that is no dictionary", R"({501 = x; 0 = (y);})", {}},
        {"nothing", "{}", {}},
        {"the newer form", R"({"preferred devices" = {"system output" = ({uid = one;});};})", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(deviceIn(row.settings, SoundSettingsForm::DevicesByUser), row.device)
            << row.reason;
}

class SoundEffectDeviceTest : public SoundFixture {
protected:
    void writeSettings(const QByteArray &content) {
        platform.sounds.place = {addFile(u"settings.plist"_s), u"501"_s};
        QFile file(platform.sounds.place.path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    ZTSound::Pointer sound = ZTSound::soundWithContentsOfFile(u"/none.wav"_s);
};

TEST_F(SoundEffectDeviceTest, theSystemsVersionTellsTheForm) {
    writeSettings(R"({
        "preferred devices" = {"system output" = ({uid = newer;});};
        501 = {"current default system output device" = older;};
    })");
    EXPECT_EQ(SoundExtensions::soundEffectDeviceID(*sound), u"newer"_s);
    platform.systemVersion.framework = beforeYosemite;
    EXPECT_EQ(SoundExtensions::soundEffectDeviceID(*sound), u"older"_s);
}

TEST_F(SoundEffectDeviceTest, aFileThatCannotBeReadTellsNothing) {
    platform.sounds.place = {u"/nonexistent/settings.plist"_s, u"501"_s};
    EXPECT_EQ(SoundExtensions::soundEffectDeviceID(*sound), std::nullopt);
    writeSettings("{ this is { no list");
    EXPECT_EQ(SoundExtensions::soundEffectDeviceID(*sound), std::nullopt);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

} // namespace
