// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfInterpreter.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/PlainTextDecoder.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// How many groups may be open; what lies deeper is skipped.
constexpr std::size_t maximumGroups = 1000;

// The longest instruction or file name that is kept.
constexpr qsizetype longestAside = 4096;

void addAside(QString &aside, const QString &text) {
    aside += QStringView(text).left(longestAside - aside.size());
}

bool isNamedSymbol(const RtfKeyword &keyword) {
    return keyword.action == RtfAction::InsertCharacter && keyword.value > 0x7F;
}

// Only paragraphs that the writer has made itself may break the text.
QString withoutParagraphBreaks(QString text) {
    return text.replace(u'\n', QChar::LineSeparator)
        .replace(QChar::ParagraphSeparator, QChar::LineSeparator);
}

} // namespace

RtfInterpreter::RtfInterpreter(std::string_view content, SelfContainedDocument &document)
    : m_tokenizer(content)
    , m_document(document)
    , m_writer(document, m_tables) {}

void RtfInterpreter::run() {
    while (!m_writer.isFull()) {
        if (!handle(m_tokenizer.next()))
            break;
    }
    flush();
    m_writer.finish(m_state.paragraph);
}

// Answers false at the end.
bool RtfInterpreter::handle(const RtfToken &token) {
    switch (token.kind) {
    case RtfToken::Kind::End:
        return false;
    case RtfToken::Kind::GroupStart:
        beginGroup();
        return true;
    case RtfToken::Kind::GroupEnd:
        return endGroup();
    default:
        break;
    }
    if (m_ignoredGroups > 0 || m_state.destination == RtfDestination::Skipped)
        return true;
    switch (token.kind) {
    case RtfToken::Kind::ControlWord:
        handleWord(token);
        break;
    case RtfToken::Kind::ControlSymbol:
        handleSymbol(token.text.front());
        break;
    case RtfToken::Kind::Byte: {
        const char byte = static_cast<char>(token.parameter);
        handleBytes({&byte, 1});
        break;
    }
    case RtfToken::Kind::Text:
        handleBytes(token.text);
        break;
    default: // Binary
        if (m_charactersToSkip > 0) {
            --m_charactersToSkip;
        } else if (m_state.destination == RtfDestination::Picture) {
            m_picture.content.append(token.text.data(), static_cast<qsizetype>(token.text.size()));
        }
        break;
    }
    return true;
}

void RtfInterpreter::beginGroup() {
    if (m_ignoredGroups > 0 || m_outerStates.size() >= maximumGroups) {
        ++m_ignoredGroups;
        return;
    }
    flush();
    m_charactersToSkip = 0;
    m_nextIsIgnorable = false;
    m_outerStates.push_back(m_state);
    m_state.beginsDestination = false;
}

// Answers false when the outermost group ends: what follows is no part of the text.
bool RtfInterpreter::endGroup() {
    if (m_ignoredGroups > 0) {
        --m_ignoredGroups;
        return true;
    }
    flush();
    m_charactersToSkip = 0;
    m_nextIsIgnorable = false;
    if (m_outerStates.size() <= 1)
        return false;
    m_skipsAttachmentMark = false;
    const RtfState ended = std::exchange(m_state, m_outerStates.back());
    m_outerStates.pop_back();
    if (ended.beginsDestination)
        endDestination(ended);
    return true;
}

void RtfInterpreter::handleWord(const RtfToken &token) {
    const bool isIgnorable = std::exchange(m_nextIsIgnorable, false);
    const std::optional<RtfKeyword> keyword = findRtfKeyword(token.text);
    if (m_charactersToSkip > 0 && keyword && isNamedSymbol(*keyword)) {
        --m_charactersToSkip;
        return;
    }
    // Any other word ends what repeats \uN: a program that left the repetition out means it.
    m_charactersToSkip = 0;
    if (keyword) {
        apply(*keyword, token);
    } else if (isIgnorable) {
        beginDestination(RtfDestination::Skipped);
    }
}

void RtfInterpreter::handleSymbol(char symbol) {
    if (symbol == '*') {
        m_nextIsIgnorable = true;
        return;
    }
    if (symbol == '\\' || symbol == '{' || symbol == '}') {
        // They can be the second byte of a character, so that they are bytes and not characters.
        handleBytes({&symbol, 1});
        return;
    }
    if (m_charactersToSkip > 0) {
        --m_charactersToSkip;
        return;
    }
    if (symbol == '~') {
        addCharacter(QChar::Nbsp);
    } else if (symbol == '-') {
        addCharacter(QChar::SoftHyphen);
    } else if (symbol == '_') {
        addCharacter(u'\u2011'); // a hyphen that does not break
    } else if (symbol == '\t') {
        addCharacter(u'\t');
    }
}

void RtfInterpreter::handleBytes(std::string_view bytes) {
    const auto skipped = std::min(bytes.size(), static_cast<std::size_t>(m_charactersToSkip));
    bytes.remove_prefix(skipped);
    m_charactersToSkip -= static_cast<int>(skipped);
    if (m_state.destination == RtfDestination::Picture) {
        addHexadecimal(bytes);
        return;
    }
    if (std::exchange(m_skipsAttachmentMark, m_skipsAttachmentMark && bytes.empty()))
        bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 1));
    m_bytes.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

void RtfInterpreter::addUnicode(int value) {
    flushBytes();
    m_charactersToSkip = m_state.unicodeSkip;
    // A signed 16-bit number, though some programs write larger ones.
    constexpr int units = 0x10000;
    const int code = value < 0 ? value + units : value;
    if (code <= 0 || code > 0x10FFFF || std::exchange(m_skipsAttachmentMark, false))
        return;
    const bool isSymbol = code >= 0xF020 && code <= 0xF0FF && codePage() == symbolCodePage;
    if (isSymbol) {
        m_text += symbolCharacter(static_cast<unsigned char>(code & 0xFF));
    } else {
        m_text += QStringView(QChar::fromUcs4(static_cast<char32_t>(code)));
    }
}

void RtfInterpreter::addCharacter(QChar character) {
    flushBytes();
    m_text += character;
}

void RtfInterpreter::flushBytes() {
    if (m_bytes.isEmpty())
        return;
    m_text += m_codePages.toText(m_bytes, codePage());
    m_bytes.clear();
}

// Delivers what was gathered, before anything changes that it depends on.
void RtfInterpreter::flush() {
    flushBytes();
    if (!m_text.isEmpty())
        deliver(std::exchange(m_text, {}));
}

void RtfInterpreter::deliver(const QString &text) {
    switch (m_state.destination) {
    case RtfDestination::Body:
        if (!m_state.character.isHidden)
            m_writer.insertText(withoutParagraphBreaks(cleanedText(text)), m_state);
        break;
    case RtfDestination::FontTable:
        m_fontReader.addText(text, m_tables);
        break;
    case RtfDestination::ColorTable:
        m_colorReader.addText(text, m_tables);
        break;
    case RtfDestination::FieldInstruction:
        addAside(m_instruction, text);
        break;
    case RtfDestination::Attachment:
        addAside(m_attachmentName, text);
        break;
    case RtfDestination::Picture:
    case RtfDestination::Skipped:
        break;
    }
}

// The code page of the text that comes next.
int RtfInterpreter::codePage() const {
    int codePage = 0;
    if (m_state.destination == RtfDestination::FontTable) {
        codePage = m_fontReader.codePage();
        // A symbol font's own name is made of letters.
        if (codePage == symbolCodePage)
            codePage = 0;
    } else {
        const int font = m_state.character.font;
        const int number = font == RtfCharacterState::defaultFont ? m_tables.defaultFont : font;
        if (const auto known = m_tables.fonts.constFind(number); known != m_tables.fonts.cend())
            codePage = known->codePage;
    }
    return codePage != 0 ? codePage : m_documentCodePage;
}
