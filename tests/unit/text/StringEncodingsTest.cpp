// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEncodings.h"

#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cmath>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

class StringEncodingsTest : public testing::Test {
protected:
    // The path of a new file.
    QString fileWith(const QByteArray &content) {
        const QString path = pathOf(u"text"_s + QString::number(++m_files));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return path;
    }

    QString pathOf(const QString &name) const { return m_folder.filePath(name); }

    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // False where the file system keeps no such attributes.
    static bool setAttribute(const QString &path, const char *name, const QByteArray &value) {
        return ::setxattr(QFile::encodeName(path).constData(), name, value.constData(),
                          static_cast<std::size_t>(value.size()), 0) == 0;
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};

QByteArray bytes(std::initializer_list<int> list) {
    QByteArray result;
    for (const int byte : list)
        result.append(static_cast<char>(byte));
    return result;
}

} // namespace

TEST_F(StringEncodingsTest, macRomanHasACharacterForEveryByte) {
    EXPECT_EQ(stringWithMacRomanCString("caf\x8E \xF0\xDB\xCA"), u"caf\u00E9 \uF8FF\u20AC\u00A0"_s);
    EXPECT_EQ(stringWithMacRomanCString("a\0b", 3), u"a\0b"_s);
    EXPECT_EQ(stringWithMacRomanCString("a\0b"), u"a"_s);
    EXPECT_EQ(stringWithMacRomanCString("abc", 0), u""_s);
    EXPECT_EQ(stringWithMacRomanCString("abc", -1), u""_s);
    EXPECT_EQ(stringWithMacRomanCString(nullptr), u""_s);
    EXPECT_EQ(stringWithMacRomanCString(nullptr, 3), u""_s);
    // Every byte has its own character, and comes back.
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    const QString text = stringWithMacRomanCString(all.constData(), 256);
    EXPECT_EQ(dataUsingEncoding(text, StringEncoding::MacOSRoman), all);
}

TEST_F(StringEncodingsTest, aTypeCodeIsFourCharacters) {
    EXPECT_EQ(stringWithOSType(fourCharCode("TEXT")), u"TEXT"_s);
    EXPECT_EQ(stringWithOSType(0x8E202020), u"\u00E9   "_s);
}

TEST_F(StringEncodingsTest, aByteOrderMarkTellsTheEncoding) {
    using Encoding = StringEncoding;
    struct {
        const char *reason;
        QByteArray content;
        Encoding encoding;
    } const rows[] = {
        {"UTF-8", bytes({0xEF, 0xBB, 0xBF}), Encoding::UTF8},
        {"UTF-8, cut off", bytes({0xEF, 0xBB}), Encoding::MacOSRoman},
        {"UTF-16, big", bytes({0xFE, 0xFF}), Encoding::UTF16BigEndian},
        {"UTF-16, little, nothing behind", bytes({0xFF, 0xFE}), Encoding::UTF16LittleEndian},
        {"UTF-16, little", bytes({0xFF, 0xFE, 'a', 0}), Encoding::UTF16LittleEndian},
        {"UTF-16, little, one odd byte", bytes({0xFF, 0xFE, 'a'}), Encoding::UTF16LittleEndian},
        {"UTF-32, big", bytes({0, 0, 0xFE, 0xFF}), Encoding::UTF32BigEndian},
        {"UTF-32, little", bytes({0xFF, 0xFE, 0, 0}), Encoding::UTF32LittleEndian},
        {"UTF-16, little, with a null first", bytes({0xFF, 0xFE, 0, 0, 'a', 0}),
         Encoding::UTF32LittleEndian},
        {"no mark", "text", Encoding::MacOSRoman},
        {"empty", "", Encoding::MacOSRoman},
        {"a mark further on", bytes({'a', 0xEF, 0xBB, 0xBF}), Encoding::MacOSRoman},
    };
    for (const auto &row : rows)
        EXPECT_EQ(explicitEncodingOfFile(fileWith(row.content), Encoding::MacOSRoman), row.encoding)
            << row.reason;
    EXPECT_EQ(explicitEncodingOfFile(pathOf(u"missing"_s), Encoding::UTF8), Encoding::UTF8);
    EXPECT_EQ(explicitEncodingOfFile(m_folder.path(), Encoding::ISOLatin1), Encoding::ISOLatin1);
}

TEST_F(StringEncodingsTest, aMarkedFileIsReadInItsEncodingWithoutTheMark) {
    const std::pair<const char *, QByteArray> rows[] = {
        {"UTF-8", QByteArray("\xEF\xBB\xBF"
                             "caf\xC3\xA9")},
        {"UTF-16, big", bytes({0xFE, 0xFF, 0, 'c', 0, 'a', 0, 'f', 0, 0xE9})},
        {"UTF-16, little", bytes({0xFF, 0xFE, 'c', 0, 'a', 0, 'f', 0, 0xE9, 0})},
        {"UTF-32, big",
         bytes({0, 0, 0xFE, 0xFF, 0, 0, 0, 'c', 0, 0, 0, 'a', 0, 0, 0, 'f', 0, 0, 0, 0xE9})},
        {"UTF-32, little",
         bytes({0xFF, 0xFE, 0, 0, 'c', 0, 0, 0, 'a', 0, 0, 0, 'f', 0, 0, 0, 0xE9, 0, 0, 0})},
    };
    for (const auto &[reason, content] : rows)
        EXPECT_EQ(stringWithBestEncodingFromFile(fileWith(content)), u"caf\u00E9"_s) << reason;
    // Two bytes are all of it.
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith(bytes({0xFF, 0xFE}))), QString());
}

TEST_F(StringEncodingsTest, aMarkThatLiesIsNotBelieved) {
    // Marked as UTF-8, but a byte that is none; the best guess has all of it.
    const std::optional<QString> text = stringWithBestEncodingFromFile(fileWith("\xEF\xBB\xBF"
                                                                                "a\xFF"));
    ASSERT_TRUE(text);
    EXPECT_FALSE(text->contains(QChar::ReplacementCharacter));
}

TEST_F(StringEncodingsTest, theEncodingNotedBesideTheFileCounts) {
    const QString path = fileWith("caf\x8E");
    if (!setAttribute(path, "user.com.apple.TextEncoding", "macintosh;0"))
        GTEST_SKIP() << "the file system of the temporary folder keeps no extended attributes";
    EXPECT_EQ(stringWithBestEncodingFromFile(path), u"caf\u00E9"_s);

    const QString koi = fileWith("\xC4\xC1");
    ASSERT_TRUE(setAttribute(koi, "user.charset", "KOI8-R"));
    EXPECT_EQ(stringWithBestEncodingFromFile(koi), u"\u0434\u0430"_s);
    ASSERT_TRUE(setAttribute(koi, "user.com.apple.TextEncoding", "macintosh;0"));
    EXPECT_EQ(stringWithBestEncodingFromFile(koi), stringWithMacRomanCString("\xC4\xC1"));

    // Nothing that can be used: valid UTF-8 stays that, and not what is noted.
    const QString unicode = fileWith("caf\xC3\xA9");
    for (const char *noted : {"no-such-encoding;1", "", ";", "us-ascii;1536"}) {
        ASSERT_TRUE(setAttribute(unicode, "user.com.apple.TextEncoding", noted));
        EXPECT_EQ(stringWithBestEncodingFromFile(unicode), u"caf\u00E9"_s) << noted;
    }
    // A mark in the file comes before the note.
    const QString marked = fileWith("\xEF\xBB\xBF\xC3\xA9");
    ASSERT_TRUE(setAttribute(marked, "user.com.apple.TextEncoding", "macintosh;0"));
    EXPECT_EQ(stringWithBestEncodingFromFile(marked), u"\u00E9"_s);
    // An empty file with a note is an empty text.
    const QString empty = fileWith("");
    ASSERT_TRUE(setAttribute(empty, "user.com.apple.TextEncoding", "utf-8;134217984"));
    EXPECT_EQ(stringWithBestEncodingFromFile(empty), QString());
}

TEST_F(StringEncodingsTest, theMostReasonableTextIsChosen) {
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("plain, valid \xC3\xA9")),
              u"plain, valid \u00E9"_s)
        << "UTF-8";
    // Two letters in UTF-16 of native order are as reasonable as anything can be, and come first.
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("\xE9\x4E")), u"\u4EE9"_s);
    // As UTF-16 these are no characters; as Mac OS Roman letters, as Latin-1 less.
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("\xFF\xFF\x8E\xFF")),
              stringWithMacRomanCString("\xFF\xFF\x8E\xFF"));
    // One byte is half a unit, and an empty text counts for nothing.
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("\x8E")), u"\u00E9"_s) << "Mac OS Roman";
    // A byte that is a symbol in one and a letter in the other.
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("\xFA")), u"\u00FA"_s) << "Latin-1";
}

TEST_F(StringEncodingsTest, nothingToReadIsNoText) {
    EXPECT_EQ(stringWithBestEncodingFromFile(fileWith("")), std::nullopt);
    EXPECT_EQ(stringWithBestEncodingFromFile(pathOf(u"missing"_s)), std::nullopt);
    EXPECT_EQ(stringWithBestEncodingFromFile(m_folder.path()), std::nullopt);
    const QString pipe = pathOf(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(stringWithBestEncodingFromFile(pipe), std::nullopt);
}

TEST_F(StringEncodingsTest, aTextIsScoredByItsCharacters) {
    struct {
        const char *reason;
        QString text;
        float factor;
    } const rows[] = {
        {"letters, digits, spaces and line ends", u"Az 09\t\r\n\u00E9\u4E00\u0301"_s, 1},
        {"controls", u"a\u0001"_s, 0},
        {"null characters", u"\0\0"_s, -1},
        {"punctuation counts nothing", u"a."_s, 0.5F},
        {"no-break space counts nothing", u"\u00A0"_s, 0},
        {"what Unicode has not defined", u"\uFFFF"_s, -10},
        {"private use counts nothing", u"a\uF8FF"_s, 0.5F},
        {"surrogates count nothing", u"\U0001F600"_s, 0},
        {"the thousandth unit counts", QString(999, u'a') + u'.' + QString(9, u'.'), 0.999F},
    };
    for (const auto &row : rows)
        EXPECT_FLOAT_EQ(reasonableTextFactor(row.text), row.factor) << row.reason;
    EXPECT_TRUE(std::isnan(reasonableTextFactor(QString())));
}

TEST_F(StringEncodingsTest, anElementIsTheTextBetweenItsTags) {
    struct {
        const char *reason;
        QString text;
        QString name;
        std::optional<QString> element;
    } const rows[] = {
        {"plain", u"<a><b>x</b></a>"_s, u"b"_s, u"x"_s},
        {"the first", u"<b>x</b><b>y</b>"_s, u"b"_s, u"x"_s},
        {"empty", u"<b></b>"_s, u"b"_s, u""_s},
        {"nesting is not understood", u"<b><b>x</b></b>"_s, u"b"_s, u"<b>x"_s},
        {"no closing tag", u"<b>x"_s, u"b"_s, std::nullopt},
        {"no opening tag", u"x</b>"_s, u"b"_s, std::nullopt},
        {"a closing tag before the opening one", u"</b><b>x"_s, u"b"_s, std::nullopt},
        {"attributes", u"<b c=\"d\">x</b>"_s, u"b"_s, std::nullopt},
        {"case counts", u"<B>x</B>"_s, u"b"_s, std::nullopt},
        {"entities stay", u"<b>&amp;</b>"_s, u"b"_s, u"&amp;"_s},
        {"no name", u"<>x</>"_s, u""_s, u"x"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(xmlElementForKey(row.text, row.name), row.element) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"<<<k/>>x");
        const qsizetype opening = text.indexOf(u"<k>"_s);
        const qsizetype closing = opening < 0 ? -1 : text.indexOf(u"</k>"_s, opening + 3);
        const auto expected = closing < 0
                                  ? std::nullopt
                                  : std::optional(text.mid(opening + 3, closing - opening - 3));
        EXPECT_EQ(xmlElementForKey(text, u"k"_s), expected) << unitsOf(text);
    });
}

TEST_F(StringEncodingsTest, textIsAppendedInItsEncoding) {
    struct {
        const char *reason;
        QString text;
        StringEncoding encoding;
        QByteArray bytes;
    } const rows[] = {
        {"UTF-8", u"\u00E9"_s, StringEncoding::UTF8, "\xC3\xA9"},
        {"Latin-1", u"\u00E9"_s, StringEncoding::ISOLatin1, "\xE9"},
        {"Mac OS Roman", u"\u00E9"_s, StringEncoding::MacOSRoman, "\x8E"},
        {"Unicode, each with a mark", u"a"_s, StringEncoding::Unicode, bytes({0xFF, 0xFE, 'a', 0})},
        {"UTF-16, big", u"a"_s, StringEncoding::UTF16BigEndian, bytes({0, 'a'})},
        {"UTF-16 takes lone surrogates", u"\xD83D"_s, StringEncoding::UTF16LittleEndian,
         bytes({0x3D, 0xD8})},
        {"UTF-32, little", u"\U0001F600"_s, StringEncoding::UTF32LittleEndian,
         bytes({0x00, 0xF6, 0x01, 0x00})},
        {"one of the others", u"\u0434"_s, StringEncoding{0x80000A02}, "\xC4"},
        {"nothing", u""_s, StringEncoding::UTF8, ""},
    };
    for (const auto &row : rows) {
        const QString path = fileWith("before");
        EXPECT_TRUE(appendToFile(row.text, path, row.encoding)) << row.reason;
        EXPECT_TRUE(appendToFile(row.text, path, row.encoding)) << row.reason;
        EXPECT_EQ(contentOf(path), "before" + row.bytes + row.bytes) << row.reason;
    }
}

TEST_F(StringEncodingsTest, whatCannotBeAppendedIsNot) {
    const std::pair<QString, StringEncoding> rows[] = {
        {u"\u0434"_s, StringEncoding::ISOLatin1}, {u"\u0434"_s, StringEncoding::MacOSRoman},
        {u"\xD83D"_s, StringEncoding::UTF8},      {u"\xDE00"_s, StringEncoding::UTF32BigEndian},
        {u"\u00E9"_s, StringEncoding::ASCII},     {u"a"_s, StringEncoding::None},
        {u"a"_s, StringEncoding{12345}}};
    for (const auto &[text, encoding] : rows) {
        const QString path = fileWith("before");
        EXPECT_FALSE(appendToFile(text, path, encoding)) << unitsOf(text);
        EXPECT_EQ(contentOf(path), "before");
    }
    // The file is there before the text is looked at.
    const QString made = pathOf(u"made"_s);
    EXPECT_FALSE(appendToFile(u"\u0434"_s, made, StringEncoding::ASCII));
    EXPECT_EQ(contentOf(made), "");
}

TEST_F(StringEncodingsTest, aMissingFileIsMadeButNoFolder) {
    const QString path = pathOf(u"new"_s);
    EXPECT_TRUE(appendToFile(u"a"_s, path, StringEncoding::UTF8));
    EXPECT_EQ(contentOf(path), "a");
    const QString elsewhere = pathOf(u"folder/new"_s);
    EXPECT_FALSE(appendToFile(u"a"_s, elsewhere, StringEncoding::UTF8));
    EXPECT_FALSE(QFile::exists(pathOf(u"folder"_s)));
    EXPECT_FALSE(appendToFile(u"a"_s, m_folder.path(), StringEncoding::UTF8));
}

TEST_F(StringEncodingsTest, appendsOfManyProcessesLoseAndMixNothing) {
    const QString path = pathOf(u"log"_s);
    constexpr int processes = 8;
    constexpr int linesOfEach = 200;
    constexpr int length = 5000; // more than a page, so that half of one would be seen
    std::vector<pid_t> children;
    for (int number = 0; number < processes; ++number) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const QString line = QString(length, QChar(u'a' + number)) + u'\n';
            bool isDone = true;
            for (int count = 0; count < linesOfEach; ++count)
                isDone = appendToFile(line, path, StringEncoding::UTF8) && isDone;
            ::_exit(isDone ? 0 : 1);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    std::array<int, processes> lines = {};
    const QList<QByteArray> all = contentOf(path).split('\n');
    ASSERT_EQ(all.size(), processes * linesOfEach + 1);
    for (const QByteArray &line : all.first(all.size() - 1)) {
        ASSERT_EQ(line.size(), length);
        ASSERT_EQ(line.count(line.front()), length) << "parts of two lines in one";
        ++lines.at(static_cast<std::size_t>(line.front() - 'a'));
    }
    EXPECT_EQ(lines, (std::array<int, processes>{200, 200, 200, 200, 200, 200, 200, 200}));
}

TEST_F(StringEncodingsTest, textComesBackFromEveryEncodingThatHasIt) {
    const StringEncoding unicode[] = {
        StringEncoding::Unicode,           StringEncoding::UTF16BigEndian,
        StringEncoding::UTF16LittleEndian, StringEncoding::UTF32BigEndian,
        StringEncoding::UTF32LittleEndian, StringEncoding::UTF8};
    forRandomCases([&unicode](RandomText &random) {
        QString text = models::withoutLoneSurrogates(random.text(u"a\u00E9\u4E00\U0001F600"));
        if (text.startsWith(QChar(0xFEFF)))
            text.remove(0, 1); // would count as a mark
        for (const StringEncoding encoding : unicode) {
            const std::optional<QByteArray> data = dataUsingEncoding(text, encoding);
            ASSERT_TRUE(data) << unitsOf(text);
            EXPECT_EQ(stringWithData(*data, encoding), text) << unitsOf(text);
        }
        QByteArray any;
        for (int count = random.number(0, 40); count > 0; --count)
            any.append(static_cast<char>(random.number(0, 255)));
        for (const StringEncoding encoding :
             {StringEncoding::ISOLatin1, StringEncoding::MacOSRoman})
            EXPECT_EQ(dataUsingEncoding(*stringWithData(any, encoding), encoding), any);
    });
}

TEST_F(StringEncodingsTest, bytesThatAreNotValidAreNoText) {
    const std::pair<QByteArray, StringEncoding> rows[] = {
        {"\xFF", StringEncoding::UTF8},
        {"\xC3", StringEncoding::UTF8},
        {"\xED\xA0\x80", StringEncoding::UTF8},
        {"\x80", StringEncoding::ASCII},
        {bytes({0, 0, 0}), StringEncoding::UTF32BigEndian},
        {bytes({0, 0x11, 0, 0}), StringEncoding::UTF32BigEndian},
        {bytes({0, 0, 0xD8, 0}), StringEncoding::UTF32BigEndian},
        {"\x81", StringEncoding{8}},
        {"a", StringEncoding::None},
    };
    for (const auto &[data, encoding] : rows)
        EXPECT_EQ(stringWithData(data, encoding), std::nullopt) << data.toHex().constData();
    EXPECT_EQ(stringWithData(bytes({'a', 0, 'b'}), StringEncoding::UTF16LittleEndian), u"a"_s)
        << "half a unit does not count";
}

TEST_F(StringEncodingsTest, registeredNamesAreKnownInAnyCase) {
    struct {
        const char *name;
        std::optional<StringEncoding> encoding;
    } const rows[] = {
        {"utf-8", StringEncoding::UTF8},
        {"UTF-8", StringEncoding::UTF8},
        {"ISO-8859-1", StringEncoding::ISOLatin1},
        {"latin1", StringEncoding::ISOLatin1},
        {"macintosh", StringEncoding::MacOSRoman},
        {"us-ascii", StringEncoding::ASCII},
        {"UTF-16", StringEncoding::Unicode},
        {"utf-16be", StringEncoding::UTF16BigEndian},
        {"utf-32le", StringEncoding::UTF32LittleEndian},
        {"windows-1252", StringEncoding{12}},
        {"Shift_JIS", StringEncoding{8}},
        {"EUC-JP", StringEncoding{3}},
        {"iso-8859-2", StringEncoding{9}},
        {"KOI8-R", StringEncoding{0x80000A02}},
        {"GB18030", StringEncoding{0x80000632}},
        {"Big5", StringEncoding{0x80000A03}},
        {"", std::nullopt},
        {"ISO", std::nullopt},
        {"Shift", std::nullopt},
        {"no-such-set", std::nullopt},
    };
    for (const auto &row : rows)
        EXPECT_EQ(encodingWithIANAName(row.name), row.encoding) << row.name;
}

TEST_F(StringEncodingsTest, everyEncodingOfTheTableHasAConverter) {
    int known = 0;
    for (quint32 high : {0x00000000U, 0x80000000U, 0x84000000U, 0x8C000000U, 0x90000000U,
                         0x94000000U, 0x98000000U, 0x9C000000U}) {
        for (quint32 low = 0; low < 0x1000; ++low) {
            const StringEncoding encoding{high | low};
            if (!nameOfEncoding(encoding))
                continue;
            ++known;
            EXPECT_EQ(encodingWithIANAName(nameOfEncoding(encoding)), encoding)
                << nameOfEncoding(encoding);
            const std::optional<QByteArray> data = dataUsingEncoding(u"A1"_s, encoding);
            ASSERT_TRUE(data) << nameOfEncoding(encoding);
            EXPECT_EQ(stringWithData(*data, encoding), u"A1"_s) << nameOfEncoding(encoding);
        }
    }
    EXPECT_GT(known, 60);
}
