// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Groups whose text goes elsewhere than into the body: links and pictures.

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfInterpreter.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/SelfContainedDocument.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLinks = 10'000;

int hexadecimalDigit(char character) {
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    return character >= 'A' && character <= 'F' ? character - 'A' + 10 : -1;
}

// The address in the instruction HYPERLINK "address"; switches such as \t may stand before it.
// Empty when the instruction is another one, or leads to a place within the document.
QString linkAddress(const QString &instruction) {
    static const QRegularExpression expression(
        uR"re(^\s*HYPERLINK\s+(?:\\[a-km-z]\s+)*(?:"([^"]*)"|([^\s"\\]+)))re"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = expression.match(instruction);
    return match.captured(1) + match.captured(2);
}

} // namespace

void RtfInterpreter::beginDestination(RtfDestination destination) {
    if (destination == RtfDestination::Body)
        return; // a group that is shown like the text around it
    m_state.destination = destination;
    m_state.beginsDestination = true;
    switch (destination) {
    case RtfDestination::FontTable:
        m_fontReader.begin(0);
        break;
    case RtfDestination::FieldInstruction:
        m_instruction.clear();
        break;
    case RtfDestination::Attachment:
        m_attachmentName.clear();
        m_picture = {};
        break;
    case RtfDestination::Picture:
        m_picture = {};
        break;
    default:
        break;
    }
}

// The group has ended, and the state is again the one around it.
void RtfInterpreter::endDestination(const RtfState &ended) {
    switch (ended.destination) {
    case RtfDestination::FontTable:
        m_fontReader.end(m_tables);
        break;
    case RtfDestination::FieldInstruction:
        endFieldInstruction();
        break;
    case RtfDestination::Picture:
        endPicture();
        break;
    case RtfDestination::Attachment:
        endAttachment();
        break;
    default:
        break;
    }
}

void RtfInterpreter::endFieldInstruction() {
    const QString address = linkAddress(m_instruction);
    if (address.isEmpty() || m_tables.links.size() >= mostLinks)
        return;
    m_tables.links.append(address);
    // The field's result is a group beside this one: it takes over the link with the state.
    m_state.character.link = static_cast<int>(m_tables.links.size() - 1);
}

void RtfInterpreter::addHexadecimal(std::string_view digits) {
    for (const char character : digits) {
        const int digit = hexadecimalDigit(character);
        if (digit < 0)
            continue; // blanks
        if (m_picture.highDigit < 0) {
            m_picture.highDigit = digit;
        } else {
            m_picture.content.append(
                static_cast<char>(std::exchange(m_picture.highDigit, -1) * 16 + digit));
        }
    }
}

void RtfInterpreter::endPicture() {
    if (m_picture.isSupported)
        insertPicture(m_document.addPicture(m_picture.content));
    m_picture = {};
}

// A file beside the text. The character that stands for it in the text follows its group.
void RtfInterpreter::endAttachment() {
    m_skipsAttachmentMark = true;
    insertPicture(m_document.addPictureFile(m_attachmentName.trimmed()));
    m_picture = {};
}

void RtfInterpreter::insertPicture(const std::optional<QString> &name) {
    if (!name || m_state.destination != RtfDestination::Body || m_state.character.isHidden)
        return;
    constexpr int largestScale = 1000;
    const auto scaled = [=](int length, int scale) {
        return static_cast<int>(qint64(length) * std::clamp(scale, 1, largestScale) / 100);
    };
    m_writer.insertPicture(*name, scaled(m_picture.width, m_picture.scaleX),
                           scaled(m_picture.height, m_picture.scaleY), m_state);
}
