// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/RegularExpressionTemplate.h"

namespace {

int digitAt(const QString &text, qsizetype index) {
    if (index >= text.size() || text[index] < u'0' || text[index] > u'9')
        return -1;
    return text[index].unicode() - u'0';
}

} // namespace

RegularExpressionTemplate::RegularExpressionTemplate(const QString &text, int groupCount) {
    Piece piece;
    qsizetype index = 0;
    while (index < text.size()) {
        const QChar unit = text[index++];
        if (unit == u'\\') {
            if (index < text.size())
                piece.literal.append(text[index++]);
        } else if (unit == u'$' && digitAt(text, index) >= 0) {
            piece.group = digitAt(text, index++);
            for (int digit = digitAt(text, index);
                 digit >= 0 && piece.group * 10 + digit <= groupCount;
                 digit = digitAt(text, index)) {
                piece.group = piece.group * 10 + digit;
                ++index;
            }
            if (piece.group > groupCount)
                piece.group = -1;
            m_pieces.push_back(piece);
            piece = {};
        } else {
            piece.literal.append(unit);
        }
    }
    m_pieces.push_back(piece);
}
