// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentTestSupport.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/AttributedDocument.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/DocumentLimits.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextTable>

#include <gtest/gtest.h>

#include <memory>

#include <sys/stat.h> // mkfifo

using namespace Qt::StringLiterals;

namespace {

class AttributedDocumentTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_folder.filePath(u"docs/"_s + name); }

    QString write(const QString &name, const QByteArray &content) const {
        QString absolute = path(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(absolute).path()));
        QFile file(absolute);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return absolute;
    }

    // The document of a file with this content; an empty one, and a failed test, on an error.
    std::unique_ptr<QTextDocument> load(const QString &name, const QByteArray &content) const {
        auto document = AttributedDocument::load(write(name, content));
        if (document)
            return *std::move(document);
        ADD_FAILURE() << document.error().text();
        return std::make_unique<QTextDocument>();
    }

    QTemporaryDir m_folder;
};

TEST_F(AttributedDocumentTest, theKindIsToldByContentAndName) {
    EXPECT_EQ(textOf(*load(u"a.rtf"_s, R"({\rtf1 {\b rich}})")), "rich");
    EXPECT_EQ(textOf(*load(u"a.txt"_s, R"({\rtf1 {\b rich}})")), "rich");
    EXPECT_EQ(textOf(*load(u"b.rtf"_s, "not rich")), "not rich");
    EXPECT_EQ(textOf(*load(u"a.HTML"_s, "<p>a<p>b")), "a\nb");
    EXPECT_EQ(textOf(*load(u"a"_s, "<!doctype html><p>a<p>b")), "a\nb");
    EXPECT_EQ(textOf(*load(u"a.md"_s, "# Title\n\ntext **bold**")), "Title\ntext bold");
    EXPECT_EQ(textOf(*load(u"README"_s, "# no title\n")), "# no title\n");
}

TEST_F(AttributedDocumentTest, aFolderOfRichTextIsReadWithItsPictures) {
    write(u"Read Me.rtfd/picture.png"_s, pictureBytes(3, 3));
    write(u"Read Me.rtfd/TXT.rtf"_s, R"({\rtf1 a{{\NeXTGraphic picture.png }\'ac}b})");
    const auto document = AttributedDocument::load(path(u"Read Me.rtfd"_s));
    ASSERT_TRUE(document);
    EXPECT_EQ(textOf(**document), "a[picture]b");
}

TEST_F(AttributedDocumentTest, whatIsNoReadableFileIsAnError) {
    EXPECT_FALSE(AttributedDocument::load(path(u"missing.txt"_s)));
    EXPECT_FALSE(AttributedDocument::load(m_folder.path()));
    EXPECT_FALSE(AttributedDocument::load({}));
    const QString pipe = m_folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(AttributedDocument::load(pipe));
    const QString huge = write(u"huge.txt"_s, {});
    ASSERT_TRUE(QFile::resize(huge, 1LL << 40));
    const auto document = AttributedDocument::load(huge);
    ASSERT_FALSE(document);
    EXPECT_EQ(document.error().text(), "read " + huge.toStdString() + ": it is too large");
}

TEST_F(AttributedDocumentTest, anEmptyFileIsAnEmptyDocument) {
    for (const QString &name : {u"a.txt"_s, u"a.rtf"_s, u"a.html"_s, u"a.md"_s})
        EXPECT_EQ(textOf(*load(name, {})), "") << name.toStdString();
}

TEST_F(AttributedDocumentTest, plainTextIsBlackAndKeepsItsLines) {
    const auto document = load(u"a.txt"_s, "one\r\n\ttwo\r\n\f\n\x01three");
    EXPECT_EQ(textOf(*document), "one\n\ttwo\n\n\nthree");
    EXPECT_EQ(formatOf(*document, u"two"_s).foreground().color(), QColor(Qt::black));
}

TEST_F(AttributedDocumentTest, garbageOfAnyNameIsHarmless) {
    QByteArray garbage;
    for (int i = 0; i < 20'000; ++i)
        garbage.append(static_cast<char>((i * 7919 + i / 251) >> 2));
    for (const QString &name : {u"a.txt"_s, u"a.rtf"_s, u"a.html"_s, u"a.md"_s}) {
        load(name, garbage);
        load(name, "{\\rtf1 " + garbage);
        load(name, "<html>" + garbage);
        load(name, QByteArray(20'000, '\0'));
    }
}

TEST_F(AttributedDocumentTest, aLongTextEndsWithAnEllipsis) {
    const auto byLines = load(u"a.txt"_s, QByteArray("\n").repeated(2LL * maximumShownParagraphs));
    EXPECT_EQ(byLines->blockCount(), maximumShownParagraphs);
    EXPECT_TRUE(byLines->toPlainText().endsWith(u'…'));
    const auto byLength = load(u"a.txt"_s, QByteArray("word ").repeated(maximumShownCharacters));
    EXPECT_LE(byLength->characterCount(), maximumShownCharacters + 1000);
    EXPECT_TRUE(byLength->toPlainText().endsWith(u'…'));
}

TEST_F(AttributedDocumentTest, htmlKeepsItsStructureAndRunsNothing) {
    const auto document =
        load(u"a.html"_s, "<html><head><title>T</title><script>document.write('evil')</script>"
                          "<style>p { color: green }</style></head><body><h1>Head</h1>"
                          "<p onclick='evil()'>text <b>bold</b></p>"
                          "<table><tr><td>cell</td></tr></table></body></html>");
    EXPECT_EQ(textOf(*document), "Head\ntext bold\ncell\n");
    EXPECT_EQ(formatOf(*document, u"text"_s).foreground().color(), QColor(u"green"_s));
    EXPECT_NE(document->find(u"cell"_s).currentTable(), nullptr);
}

TEST_F(AttributedDocumentTest, onlyPicturesBesideTheDocumentAreShown) {
    write(u"beside.png"_s, pictureBytes(2, 2));
    write(u"images/below 1.jpg"_s, pictureBytes(3, 3, "jpeg"));
    write(u"../outside.png"_s, pictureBytes(4, 4));
    ASSERT_TRUE(QFile::link(path(u"../outside.png"_s), path(u"link.png"_s)));
    write(u"vector.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    const QByteArray outside = QFile::encodeName(path(u"../outside.png"_s));

    const auto document =
        load(u"a.html"_s,
             "<img src='beside.png'><img src='images/below%201.jpg'>"
             "<img src='data:image/png;base64," +
                 pictureBytes(1, 1).toBase64() +
                 "'>"
                 "<img src='http://127.0.0.1:9/a.png' alt='remote'>"
                 "<img src='//127.0.0.1:9/a.png' alt='remote too'>"
                 "<img src='../outside.png' alt='above'><img src='link.png' alt='linked'>"
                 "<img src='" +
                 outside + "' alt='absolute'><img src='file://" + outside +
                 "' alt='file'>"
                 "<img src='vector.svg' alt='vector'><img src='picture:99' alt='unknown'>"
                 "<img src=':/qt-project.org/styles/commonstyle/images/file-16.png' alt='resource'>"
                 "<img src='missing.png' alt='missing'><img src='a.html'>");
    EXPECT_EQ(textOf(*document), "[picture][picture][picture]remoteremote tooabovelinkedabsolute"
                                 "filevectorunknownresourcemissing");
    EXPECT_EQ(pictureNames(*document),
              (QStringList{u"picture:1"_s, u"picture:2"_s, u"picture:3"_s}));
}

// A single pixel stands for whatever is not given, so that the view looks no further.
bool isRefused(QTextDocument &document, const QString &address) {
    const QVariant resource = document.resource(QTextDocument::ImageResource, QUrl(address));
    return resource.value<QImage>().size() == QSize(1, 1);
}

TEST_F(AttributedDocumentTest, theLoaderGivesNothingFromElsewhere) {
    write(u"beside.png"_s, pictureBytes(2, 2));
    write(u"style.css"_s, "p { color: red }");
    const auto document = load(u"a.html"_s, "<link rel='stylesheet' href='style.css'>"
                                            "<style>@import url(style.css);</style>"
                                            "<body background='http://127.0.0.1:9/b.png'><p>text");
    EXPECT_FALSE(isRefused(*document, u"beside.png"_s));
    for (const QString &address :
         {u"http://127.0.0.1:9/a.png"_s, u"https://example.org/a.png"_s, u"ftp://example.org/a"_s,
          u"file:///etc/passwd"_s, u"/etc/passwd"_s, u"../../../../etc/passwd"_s, u"qrc:/a"_s,
          u"data:text/html,x"_s, u"."_s, QString()})
        EXPECT_TRUE(isRefused(*document, address)) << address.toStdString();
    for (const QString &name : {u"style.css"_s, u"http://127.0.0.1:9/style.css"_s}) {
        EXPECT_FALSE(document->resource(QTextDocument::StyleSheetResource, QUrl(name)).isValid());
        EXPECT_FALSE(document->resource(QTextDocument::HtmlResource, QUrl(name)).isValid());
    }
    EXPECT_EQ(formatOf(*document, u"text"_s).foreground().color(), QColor(Qt::black));
}

TEST_F(AttributedDocumentTest, onlyLinksToTheWebAndToMailAreKept) {
    const auto document =
        load(u"a.html"_s, "<a href='https://example.org/'>web</a> <a href='mailto:a@b.c'>mail</a> "
                          "<a href='javascript:evil()'>script</a> <a href='file:///x'>file</a> "
                          "<a href='other.html'>beside</a> <a href='#p'>place</a><a name=p></a>");
    EXPECT_EQ(linksOf(*document), (QStringList{u"https://example.org/"_s, u"mailto:a@b.c"_s}));
    EXPECT_EQ(textOf(*document), "web mail script file beside place");
    EXPECT_FALSE(formatOf(*document, u"script"_s).fontUnderline());
    EXPECT_EQ(formatOf(*document, u"script"_s).foreground().color(), QColor(Qt::black));
}

TEST_F(AttributedDocumentTest, markdownKeepsItsStructure) {
    write(u"p.png"_s, pictureBytes(2, 2));
    const auto document = load(
        u"README.md"_s, "# Title\n\ntext [link](https://example.org) ![shot](p.png) "
                        "![gone](http://127.0.0.1:9/x.png)\n\n- one\n- two\n\n"
                        "| a | b |\n|---|---|\n| c | d |\n\n```\ncode\n```\n\nend <b>raw</b>\n");
    const std::string text = textOf(*document);
    for (const char *expected :
         {"Title\n", "text link [picture] gone", "one\ntwo", "c\nd", "code", "end <b>raw</b>"})
        EXPECT_NE(text.find(expected), std::string::npos) << expected << " in " << text;
    EXPECT_EQ(document->begin().blockFormat().headingLevel(), 1);
    EXPECT_EQ(linksOf(*document), QStringList{u"https://example.org"_s});
    EXPECT_EQ(formatOf(*document, u"one"_s).foreground().color(), QColor(Qt::black));
}

TEST_F(AttributedDocumentTest, markupThatIsTooComplexIsShownAsItStands) {
    const QByteArray nested = QByteArray("<div>").repeated(50'000) + "text";
    EXPECT_TRUE(load(u"a.html"_s, nested)->toPlainText().startsWith("<div>"_L1));
    const QByteArray list = QByteArray("- item\n").repeated(50'000);
    EXPECT_TRUE(load(u"a.md"_s, list)->toPlainText().startsWith("- item\n- item"_L1));
    const QByteArray large = "<p>" + QByteArray(maximumMarkupSize, 'x');
    EXPECT_TRUE(load(u"b.html"_s, large)->toPlainText().startsWith("<p>xxx"_L1));
}

// Lays the document out; a test that hangs here has failed.
qreal layoutHeight(QTextDocument &document) {
    document.setTextWidth(540);
    return document.size().height();
}

TEST_F(AttributedDocumentTest, absurdLengthsAreShownAsPlainText) {
    for (const char *element :
         {"<p style='margin:99999999px'>text</p>", "<p style='margin:-99999999px'>text</p>",
          "<p style='font-size:1e300pt'>text</p>", "<p style='line-height:9999999999px'>text</p>",
          "<table cellpadding=100000 height=99999999><tr><td>text</table>",
          "<table><tr><td style='border:1e9px solid'>text</table>"}) {
        const auto document = load(u"a.html"_s, QByteArray(element).repeated(100));
        EXPECT_LT(layoutHeight(*document), 100'000) << element;
        EXPECT_EQ(document->toPlainText().count(u"text"_s), 100) << element;
    }
}

TEST_F(AttributedDocumentTest, whatAddsUpToAnAbsurdHeightIsShownAsPlainText) {
    const QByteArray tall =
        R"({\rtf1\sb31680\sa31680\fs400 )" + QByteArray("x\\par ").repeated(9000);
    EXPECT_LT(layoutHeight(*load(u"a.rtf"_s, tall)), 1'000'000);
    QByteArray narrow = R"({\rtf1\trowd)";
    for (int edge = 1; edge < 60; ++edge)
        narrow += "\\cellx" + QByteArray::number(edge);
    narrow += "\\intbl " + QByteArray("a ").repeated(400'000) + "\\cell\\row}";
    EXPECT_LT(layoutHeight(*load(u"b.rtf"_s, narrow)), 1'000'000);
}

TEST_F(AttributedDocumentTest, tablesWithinTablesAreBounded) {
    const auto few = load(u"a.html"_s, QByteArray("<table><tr><td>").repeated(4) + "text");
    EXPECT_NE(few->find(u"text"_s).currentTable(), nullptr);
    // Twenty of them would take half a minute to lay out, and each further one twice as long.
    const auto many =
        load(u"b.html"_s, QByteArray("<table><tr><td><caption>").repeated(40) + "text");
    EXPECT_GT(layoutHeight(*many), 0);
    EXPECT_EQ(many->find(u"text"_s).currentTable(), nullptr);
}

TEST_F(AttributedDocumentTest, longParagraphsOfManySpansAreReadInTime) {
    const auto document = load(u"a.md"_s, QByteArray("[a](http://b) `c` ").repeated(10'000));
    EXPECT_EQ(linksOf(*document).size(), 10'000);
    load(u"a.rtf"_s, R"({\rtf1 )" + QByteArray(R"({\b a} )").repeated(50'000));
}

} // namespace
