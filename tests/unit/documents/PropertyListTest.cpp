// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListTestSupport.h"

#include "Platform/linux/PropertyListLimits.h"

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>

#include <sys/stat.h> // mkfifo

using testing::StartsWith;
using zt::parsePropertyList;
using namespace Qt::StringLiterals;

namespace {

struct Row {
    const char *reason;
    QByteArray content;
    std::string expected; // as describe() writes it
};

std::string rowName(const testing::TestParamInfo<Row> &row) {
    return row.param.reason;
}

void PrintTo(const Row &row, std::ostream *stream) {
    *stream << row.reason;
}

// Repeats the text.
QByteArray times(qsizetype count, const QByteArray &text) {
    return text.repeated(count);
}

constexpr int deepest = zt::maximumPropertyListDepth;

class PropertyListForms : public testing::TestWithParam<Row> {};

TEST_P(PropertyListForms, isRead) {
    EXPECT_EQ(describe(parsePropertyList(GetParam().content)), GetParam().expected);
}

const QByteArray doctype =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Example//DTD\" \"http://example.org/x.dtd\">\n";

INSTANTIATE_TEST_SUITE_P(
    Xml, PropertyListForms,
    testing::Values(
        Row{"everyKindOfValue",
            doctype + "<plist version=\"1.0\"><dict>\n"
                      "<key>s</key><string>text</string><key>i</key><integer>42</integer>\n"
                      "<key>r</key><real>-1.5e3</real><key>t</key><true/><key>f</key><false/>\n"
                      "<key>d</key><data>\n AP8= \n</data>\n"
                      "<key>w</key><date>2023-11-14T22:13:20Z</date>\n"
                      "<key>a</key><array><string>x</string><dict/></array></dict></plist>\n",
            "{a=(\"x\",{});d=<00ff>;f=false;i=42;r=-1500r;s=\"text\";t=true;"
            "w=2023-11-14T22:13:20Z}"},
        Row{"aRootWithoutThePlistElement", "<dict><key>a</key><string>b</string></dict>",
            "{a=\"b\"}"},
        Row{"aScalarAsRoot", "<plist><string>alone</string></plist>", "\"alone\""},
        Row{"negativeIntegers", "<plist><integer>-9223372036854775808</integer></plist>",
            "-9223372036854775808"},
        Row{"hexadecimalIntegers", "<plist><integer> 0x1F </integer></plist>", "31"},
        Row{"blanksInStringsAreKept", "<plist><string> a \n b </string></plist>", "\" a \n b \""},
        Row{"emptyStringsAndKeys", "<plist><dict><key></key><string/></dict></plist>", "{=\"\"}"},
        Row{"entitiesAndCharacterData",
            "<plist><string>&lt;&amp;&#x41;&#66;<![CDATA[<raw>]]></string></plist>",
            "\"<&AB<raw>\""},
        Row{"commentsAnywhere",
            "<!-- a --><plist><!-- b --><dict><key>a<!-- c -->b</key><true/></dict></plist>",
            "{ab=true}"},
        Row{"theLastOfTwoEqualKeysCounts",
            "<plist><dict><key>a</key><true/><key>a</key><false/></dict></plist>", "{a=false}"},
        Row{"aByteOrderMark", "\xEF\xBB\xBF<plist><string>\xC3\xA9</string></plist>",
            "\"\xC3\xA9\""},
        Row{"latin1WhenDeclared",
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>\xE9</string></plist>",
            "\"\xC3\xA9\""},
        Row{"blanksBeforeTheFirstElement", "\n  <plist><true/></plist>", "true"},
        Row{"datesFarAway", "<plist><date>9999-12-31T23:59:59Z</date></plist>",
            "9999-12-31T23:59:59Z"},
        Row{"nestingUpToTheLimit",
            "<plist>" + times(deepest, "<array>") + times(deepest, "</array>") + "</plist>",
            std::string(deepest, '(') + std::string(deepest, ')')}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    BrokenXml, PropertyListForms,
    testing::Values(
        Row{"aKeyWithoutValue", "<plist>\n<dict>\n<key>a</key>\n</dict></plist>",
            "failed: line 4: the key \"a\" has no value"},
        Row{"aValueWithoutKey", "<plist><dict>\n<string>a</string></dict></plist>",
            "failed: line 2: a value without a key"},
        Row{"twoKeysInARow", "<plist><dict><key>a</key><key>b</key></dict></plist>",
            "failed: line 1: a key that is out of place"},
        Row{"aKeyInAnArray", "<plist><array><key>a</key></array></plist>",
            "failed: line 1: a key that is out of place"},
        Row{"twoRoots", "<plist><true/><true/></plist>", "failed: line 1: more than one value"},
        Row{"noRoot", "<plist>\n</plist>", "failed: line 2: it holds no value"},
        Row{"aPlistInAPlist", "<plist><plist><true/></plist></plist>",
            "failed: line 1: a property list inside of another"},
        Row{"anUnknownElement", "<plist><uid>3</uid></plist>",
            "failed: line 1: not a value: <uid>3"},
        Row{"anIntegerThatIsNone", "<plist><integer>12a</integer></plist>",
            "failed: line 1: not a value: <integer>12a"},
        Row{"anIntegerThatIsTooLarge", "<plist><integer>9223372036854775808</integer></plist>",
            "failed: line 1: not a value: <integer>9223372036854775808"},
        Row{"anEmptyInteger", "<plist><integer/></plist>",
            "failed: line 1: not a value: <integer>"},
        Row{"aRealWithAComma", "<plist><real>1,5</real></plist>",
            "failed: line 1: not a value: <real>1,5"},
        Row{"aDateThatIsNone", "<plist><date>2023-02-30T00:00:00Z</date></plist>",
            "failed: line 1: not a value: <date>2023-02-30T00:00:00Z"},
        Row{"dataThatIsNone", "<plist><data>!!!!</data></plist>",
            "failed: line 1: not a value: <data>!!!!"},
        Row{"aBooleanWithText", "<plist><true>no</true></plist>",
            "failed: line 1: not a value: <true>no"},
        Row{"textBetweenTheValues", "<plist><array>text<true/></array></plist>",
            "failed: line 1: text outside of a value"},
        Row{"nestingBeyondTheLimit", "<plist>" + times(deepest + 1, "<array>"),
            "failed: line 1: values are nested too deeply"},
        Row{"halfAMillionOpenElements", "<plist>" + times(500'000, "<dict><key>a</key>"),
            "failed: line 1: values are nested too deeply"},
        Row{"declaredEntities",
            "<!DOCTYPE plist [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]>\n"
            "<plist><string>&b;</string></plist>",
            "failed: line 1: entities are declared"}),
    rowName);

TEST(PropertyListTest, malformedXmlIsAnErrorWithItsLine) {
    EXPECT_THAT(describe(parsePropertyList("<plist>\n<dict>\n</plist>")),
                StartsWith("failed: line 3: "));
    EXPECT_THAT(describe(parsePropertyList("<plist><string>a<b/></string></plist>")),
                StartsWith("failed: line 1: "));
    EXPECT_THAT(describe(parsePropertyList("<plist><string>&unknown;</string></plist>")),
                StartsWith("failed: line 1: "));
    EXPECT_THAT(describe(parsePropertyList("<plist><string>\xC3(</string></plist>")),
                StartsWith("failed: line 1: "));
}

TEST(PropertyListTest, everyUnicodeEncodingOfXmlAndOfTheOldFormIsRead) {
    const QString xml = u"<plist><string>\u00E9\u65E5\U0001F600</string></plist>"_s;
    const QString old = u"{ key = \"\u00E9\u65E5\U0001F600\"; }"_s;
    const std::string text = "\"\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80\"";
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE,
                                QStringConverter::Utf16BE, QStringConverter::Utf32LE}) {
        for (const auto flag :
             {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            if (encoding == QStringConverter::Utf32LE && flag == QStringConverter::Flag::Default)
                continue; // only marked
            const QByteArray encodedXml = QStringEncoder(encoding, flag).encode(xml);
            EXPECT_EQ(describe(parsePropertyList(encodedXml)), text) << encoding;
            const QByteArray encodedOld = QStringEncoder(encoding, flag).encode(old);
            EXPECT_EQ(describe(parsePropertyList(encodedOld)), "{key=" + text + "}") << encoding;
        }
    }
}

TEST(PropertyListTest, realsDoNotDependOnTheLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8"))
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_EQ(describe(parsePropertyList("<plist><real>1.5</real></plist>")), "1.5r");
    std::setlocale(LC_NUMERIC, before.c_str());
}

// Texts of one letter: 0x51 is the letter Q.
const QByteArray keyObject = "Qk";
const QByteArray textObject = "Qx";

INSTANTIATE_TEST_SUITE_P(
    Binary, PropertyListForms,
    testing::Values(
        Row{"aDictionary",
            binaryPropertyList({QByteArray("\xD2\x01\x02\x03\x04", 5), keyObject, QByteArray("Ql"),
                                QByteArray("Uhello"), "\x09"}),
            "{k=\"hello\";l=true}"},
        Row{"anArrayOfEveryScalar",
            binaryPropertyList(
                {QByteArray("\xA8\x01\x02\x03\x04\x05\x06\x07\x08", 9), "\x08",
                 QByteArray("\x10\x2A", 2), QByteArray("\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFE", 9),
                 QByteArray("\x22\x3F\xC0\x00\x00", 5),
                 QByteArray("\x23\x3F\xF8\x00\x00\x00\x00\x00\x00", 9),
                 QByteArray("\x33\x00\x00\x00\x00\x00\x00\x00\x00", 9),
                 QByteArray("\x42\x00\xFF", 3), QByteArray("\x62\x65\xE5\x67\x2C", 5)}),
            "(false,42,-2,1.5r,1.5r,2001-01-01T00:00:00Z,<00ff>,\"\xE6\x97\xA5\xE6\x9C\xAC\")"},
        Row{"aLongText",
            binaryPropertyList({QByteArray("\x5F\x10\x14", 3) + "twenty letters long!"}),
            "\"twenty letters long!\""},
        Row{"aDateBefore2001",
            binaryPropertyList({QByteArray("\x33\xC1\xD0\x00\x00\x00\x00\x00\x00", 9)}),
            "1966-12-23T10:22:56Z"},
        Row{"sharedObjects",
            binaryPropertyList({QByteArray("\xA2\x01\x01", 3), QByteArray("\xA2\x02\x02", 3),
                                textObject}),
            "((\"x\",\"x\"),(\"x\",\"x\"))"},
        Row{"wideReferences",
            binaryPropertyList({QByteArray("\xA1\x00\x00\x00\x01", 5), textObject}, 4, 8),
            "(\"x\")"},
        Row{"aTextEndsAtANullCharacter", binaryPropertyList({QByteArray("\x53p\0q", 4)}), "\"p\""}),
    rowName);

// A chain of arrays, each holding the next one so many times.
QByteArray arrayChain(int length, int copies) {
    QList<QByteArray> objects;
    for (int i = 0; i < length; ++i) {
        QByteArray object(1, static_cast<char>(0xA0 + copies));
        for (int copy = 0; copy < copies; ++copy) {
            object.append(static_cast<char>((i + 1) >> 8));
            object.append(static_cast<char>(i + 1));
        }
        objects.append(object);
    }
    objects.append(textObject);
    return binaryPropertyList(objects, 2, 4);
}

// A root array of one huge count.
QByteArray hugeCount(const char *count) {
    return binaryPropertyList({QByteArray("\xAF\x13", 2) + QByteArray(count, 8)});
}

QByteArray withTrailer(qsizetype position, const QByteArray &bytes) {
    QByteArray content = binaryPropertyList({textObject});
    return content.replace(content.size() - 32 + position, bytes.size(), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    HostileBinary, PropertyListForms,
    testing::Values(
        Row{"aRootThatContainsItself", binaryPropertyList({QByteArray("\xA1\x00", 2)}),
            "failed: an object contains itself"},
        Row{"aCycleOfTwo",
            binaryPropertyList({QByteArray("\xA1\x01", 2), QByteArray("\xA1\x00", 2)}),
            "failed: an object contains itself"},
        Row{"aReferenceToNothing", binaryPropertyList({QByteArray("\xA1\x07", 2)}),
            "failed: an object refers to one that does not exist"},
        Row{"aNumberAsKey",
            binaryPropertyList({QByteArray("\xD1\x01\x01", 3), QByteArray("\x10\x01", 2)}),
            "failed: a key is not a text"},
        Row{"aKeyWithANullCharacter",
            binaryPropertyList({QByteArray("\xD1\x01\x01", 3), QByteArray("\x53p\0q", 4)}),
            "failed: a key contains a NUL character"},
        Row{"aWideKeyWithANullCharacter",
            binaryPropertyList({QByteArray("\xD1\x01\x01", 3), QByteArray("\x62\0p\0\0", 5)}),
            "failed: a key contains a NUL character"},
        Row{"deepNesting", arrayChain(10'000, 1), "failed: values are nested too deeply"},
        Row{"sharingThatUnfoldsWithoutEnd", arrayChain(100, 14),
            "failed: its values unfold to too many"},
        Row{"aCountBeyondTheContent", hugeCount("\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
            "failed: an object is damaged or of an unknown kind"},
        Row{"aCountThatOverflows", hugeCount("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
            "failed: an object is damaged or of an unknown kind"},
        Row{"aNullObject", binaryPropertyList({QByteArray("\0", 1)}),
            "failed: an object is damaged or of an unknown kind"},
        Row{"anArchiverReference", binaryPropertyList({QByteArray("\x80\x01", 2)}),
            "failed: an object is damaged or of an unknown kind"},
        Row{"aDateThatIsNoNumber",
            binaryPropertyList({QByteArray("\x33\x7F\xF8\x00\x00\x00\x00\x00\x00", 9)}),
            "failed: a date is out of range"},
        Row{"aDateOfTheYear9999",
            binaryPropertyList({QByteArray("\x33\x42\x4D\x5D\x6C\x57\x7F\x80\x00", 9)}),
            "failed: a date is out of range"},
        Row{"onlyTheFirstBytes", "bplist00",
            "failed: the table of objects is damaged or too large"},
        Row{"noObjects", withTrailer(8, QByteArray(8, '\0')),
            "failed: the table of objects is damaged or too large"},
        Row{"tooManyObjects", withTrailer(8, QByteArray(8, '\xFF')),
            "failed: the table of objects is damaged or too large"},
        Row{"aRootOutsideOfTheTable", withTrailer(16, QByteArray(8, '\x01')),
            "failed: the table of objects is damaged or too large"},
        Row{"aTableOutsideOfTheContent", withTrailer(24, QByteArray(8, '\xFF')),
            "failed: the table of objects is damaged or too large"},
        Row{"offsetsOfNoWidth", withTrailer(6, QByteArray(1, '\0')),
            "failed: the table of objects is damaged or too large"}),
    rowName);

TEST(PropertyListTest, everyBeginningOfAListIsReadOrRefused) {
    const QList<QByteArray> samples = {
        doctype + "<plist><dict><key>a</key><array><integer>1</integer></array></dict></plist>",
        binaryPropertyList({QByteArray("\xD1\x01\x02", 3), keyObject, QByteArray("\xA1\x03", 2),
                            QByteArray("\x62\x65\xE5\x67\x2C", 5)}),
        R"(/* c */ { key = (a, "b\101", <00ff>, { x = y; }); })"};
    for (const QByteArray &sample : samples) {
        EXPECT_TRUE(parsePropertyList(sample));
        // The very first letters alone would be a text in the old form.
        for (qsizetype length = 6; length + 1 < sample.size(); ++length)
            EXPECT_FALSE(parsePropertyList(sample.first(length))) << length;
    }
}

TEST(PropertyListTest, contentLargerThanTheLimitIsRefused) {
    const QByteArray large(zt::maximumPropertyListSize + 1, ' ');
    EXPECT_EQ(describe(parsePropertyList(large)), "failed: it is too large");
}

class PropertyListFileTest : public testing::Test {
protected:
    QString write(const QString &name, const QByteArray &content) const {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TEST_F(PropertyListFileTest, aFileIsReadByItsContentWhateverItsName) {
    EXPECT_EQ(describe(zt::readPropertyList(write(u"a.txt"_s, "{a=b;}"))), "{a=\"b\"}");
}

TEST_F(PropertyListFileTest, anErrorNamesTheFileAndTheCause) {
    const QString broken = write(u"broken.plist"_s, "{a=\n(b;}");
    EXPECT_EQ(zt::readPropertyList(broken).error().text(),
              "parse " + broken.toStdString() +
                  ": line 2: a comma or a closing parenthesis is missing");
    const auto missing = zt::readPropertyList(m_folder.filePath(u"none"_s));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().code, ENOENT);
}

TEST_F(PropertyListFileTest, whatIsNoPlainFileIsRefusedWithoutWaiting) {
    EXPECT_FALSE(zt::readPropertyList(m_folder.path()));
    const QString pipe = m_folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(zt::readPropertyList(pipe));
    const QString loop = m_folder.filePath(u"loop"_s);
    ASSERT_TRUE(QFile::link(loop, loop));
    EXPECT_EQ(zt::readPropertyList(loop).error().code, ELOOP);
}

TEST_F(PropertyListFileTest, anEmptyFileAndAHugeOneAreRefused) {
    EXPECT_FALSE(zt::readPropertyList(write(u"empty"_s, {})));
    QFile huge(m_folder.filePath(u"huge"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    ASSERT_TRUE(huge.resize(1LL << 40)); // sparse
    EXPECT_EQ(describe(zt::readPropertyList(huge.fileName())), "failed: it is too large");
}

} // namespace
