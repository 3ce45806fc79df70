// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DesktopEntry.h"

#include "tests/unit/registration/SampleRecord.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gio/gdesktopappinfo.h>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(gchar *text) const { g_free(text); }
    void operator()(gchar **texts) const { g_strfreev(texts); }
};

using KeyFile = std::unique_ptr<GKeyFile, Unref>;

// Read by the library that desktops read entries with.
KeyFile keyFile(const std::string &text) {
    KeyFile file(g_key_file_new());
    EXPECT_TRUE(g_key_file_load_from_data(file.get(), text.data(), text.size(),
                                          G_KEY_FILE_KEEP_TRANSLATIONS, nullptr));
    return file;
}

std::string value(const KeyFile &file, const char *key) {
    const std::unique_ptr<gchar, Unref> text(
        g_key_file_get_string(file.get(), "Desktop Entry", key, nullptr));
    return text ? text.get() : "(none)";
}

} // namespace

TEST(DesktopEntryTest, saysWhatTheRecordHas) {
    const KeyFile entry = keyFile(zt::desktopEntryText(sampleRecord()));
    EXPECT_EQ(value(entry, "Type"), "Application");
    EXPECT_EQ(value(entry, "Name"), "Notes");
    EXPECT_EQ(value(entry, "Name[de]"), "Notizen");
    EXPECT_EQ(value(entry, "TryExec"), "/Applications/Notes.app/Contents/Linux/Notes");
    EXPECT_EQ(value(entry, "Exec"), "\"/Applications/Notes.app/Contents/Linux/Notes\" %U");
    EXPECT_EQ(value(entry, "Icon"), "com.example.Notes");
    EXPECT_EQ(value(entry, "Categories"), "Office;");
    EXPECT_EQ(value(entry, "MimeType"), "text/plain;application/x-note;x-scheme-handler/note;");
    EXPECT_EQ(value(entry, "NoDisplay"), "(none)");
}

TEST(DesktopEntryTest, withoutAddressesFilesAreTaken) {
    zt::ApplicationRecord record = sampleRecord();
    record.mimeTypes = {"text/plain"};
    EXPECT_TRUE(value(keyFile(zt::desktopEntryText(record)), "Exec").ends_with("\" %F"));
    record.mimeTypes.clear();
    EXPECT_TRUE(value(keyFile(zt::desktopEntryText(record)), "Exec").ends_with("Notes\""));
}

TEST(DesktopEntryTest, aBackgroundProgramStaysOutOfMenus) {
    zt::ApplicationRecord record = sampleRecord();
    record.isBackgroundOnly = true;
    EXPECT_EQ(value(keyFile(zt::desktopEntryText(record)), "NoDisplay"), "true");
}

TEST(DesktopEntryTest, withoutAnIconTheGeneralOneIsNamed) {
    zt::ApplicationRecord record = sampleRecord();
    record.icons.clear();
    EXPECT_EQ(value(keyFile(zt::desktopEntryText(record)), "Icon"), "application-x-executable");
}

class AwkwardPathTest : public testing::TestWithParam<std::string> {};

TEST_P(AwkwardPathTest, isTheFirstArgumentAsItStands) {
    zt::ApplicationRecord record = sampleRecord();
    record.bundlePath = "/Applications/" + GetParam() + ".app";
    const std::string program = record.bundlePath + "/Contents/Linux/Notes";
    const KeyFile entry = keyFile(zt::desktopEntryText(record));
    EXPECT_EQ(value(entry, "TryExec"), program);
    gchar **list = nullptr;
    ASSERT_TRUE(g_shell_parse_argv(value(entry, "Exec").c_str(), nullptr, &list, nullptr));
    const std::unique_ptr<gchar *, Unref> words(list);
    std::string expected = program; // in which desktops then turn "%%" into "%"
    for (std::size_t at = expected.find('%'); at != std::string::npos;
         at = expected.find('%', at + 2))
        expected.insert(at, "%");
    EXPECT_EQ(std::string(words.get()[0]), expected);
}

INSTANTIATE_TEST_SUITE_P(Names, AwkwardPathTest,
                         testing::Values("My Notes", "a\"b", "a'b", "a\\b", "a\\\\nb", "$HOME",
                                         "`id`", "100%", "%U", "a;b", "a=b", "\xc3\xa4", "a&b<c>",
                                         "#", "~", "a\\sb"));

// The desktops' own checker, where it is installed.
TEST(DesktopEntryTest, isValidForTheDesktopsChecker) {
    QTemporaryDir folder;
    for (const char *name : {"Notes", "My \"Notes\" 100% $HOME `x` \\"}) {
        zt::ApplicationRecord record = sampleRecord();
        record.bundlePath = std::string("/Applications/") + name + ".app";
        QFile file(folder.filePath(u"com.example.Notes.desktop"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(zt::desktopEntryText(record)));
        file.close();
        QProcess checker;
        checker.start(u"desktop-file-validate"_s, {file.fileName()});
        if (!checker.waitForFinished())
            GTEST_SKIP() << "desktop-file-validate is not there";
        EXPECT_EQ(checker.exitCode(), 0) << checker.readAllStandardOutput().toStdString();
    }
}

TEST(MimePackageTest, describesTheNewTypes) {
    QXmlStreamReader xml(QByteArray::fromStdString(zt::mimePackageText(sampleRecord())));
    QStringList found;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"mime-type")
            found << xml.attributes().value(u"type"_s).toString();
        if (xml.name() == u"glob")
            found << xml.attributes().value(u"pattern"_s).toString();
        if (xml.name() == u"comment")
            found << xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(found,
              (QStringList{u"application/x-note"_s, u"A <note> & more"_s, u"*.note"_s, u"*.nt"_s}));
}
