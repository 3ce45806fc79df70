#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Rich text, read into a text document.

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfCodePages.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfDocumentWriter.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfKeywords.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfState.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTableReaders.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTokenizer.h"

#include <QByteArray>
#include <QString>

#include <string_view>
#include <vector>

class SelfContainedDocument;

// Interprets the tokens of one rich text: keeps the state of each open group, gathers bytes into
// text, and hands the text to where the group sends it. Any bytes give some document; there is no
// failure. It takes time in proportion to the content and never recurses. Thread: main.
class RtfInterpreter {
public:
    // Both must outlive it; the document is empty.
    RtfInterpreter(std::string_view content, SelfContainedDocument &document);

    void run();

private:
    // A picture whose group is open.
    struct Picture {
        bool isSupported = false;
        QByteArray content;
        int highDigit = -1; // a hexadecimal digit that waits for the second one
        int width = 0;      // twips; 0 when not told
        int height = 0;
        int scaleX = 100; // per cent
        int scaleY = 100;
    };

    bool handle(const RtfToken &token);
    void beginGroup();
    bool endGroup();
    void handleWord(const RtfToken &token);
    void handleSymbol(char symbol);
    void handleBytes(std::string_view bytes);

    void apply(const RtfKeyword &keyword, const RtfToken &token);
    bool applyToHead(const RtfKeyword &keyword, const RtfToken &token);
    bool applyToCharacters(const RtfKeyword &keyword, const RtfToken &token);
    bool applyToParagraph(const RtfKeyword &keyword, const RtfToken &token);
    bool applyToTable(const RtfKeyword &keyword, const RtfToken &token);
    bool applyToPicture(const RtfKeyword &keyword, const RtfToken &token);
    void selectFont(int number);

    void beginDestination(RtfDestination destination);
    void endDestination(const RtfState &ended);
    void endFieldInstruction();
    void endPicture();
    void endAttachment();
    void insertPicture(const std::optional<QString> &name);

    void addUnicode(int value);
    void addCharacter(QChar character);
    void addHexadecimal(std::string_view digits);
    void flushBytes();
    void flush();
    void deliver(const QString &text);
    int codePage() const;

    RtfTokenizer m_tokenizer;
    SelfContainedDocument &m_document;
    RtfTables m_tables;
    RtfFontTableReader m_fontReader;
    RtfColorTableReader m_colorReader;
    RtfCodePages m_codePages;
    RtfDocumentWriter m_writer;

    RtfState m_state;
    std::vector<RtfState> m_outerStates;
    std::size_t m_ignoredGroups = 0; // open groups beyond the deepest that is kept
    int m_documentCodePage = westernCodePage;
    bool m_nextIsIgnorable = false; // "\*" came: an unknown destination is to be skipped
    int m_charactersToSkip = 0;     // that repeat the last \uN
    bool m_skipsAttachmentMark = false;

    QByteArray m_bytes; // of one code page, not turned into text yet
    QString m_text;     // not delivered yet
    QString m_instruction;
    QString m_attachmentName;
    Picture m_picture;
};
