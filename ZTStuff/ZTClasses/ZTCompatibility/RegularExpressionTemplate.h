#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What a regular expression's matches are replaced by.

#include <QString>

#include <vector>

// A template that was read once for many matches: text with "$n" for what group n matched, where
// backslashes make the next character an ordinary one. Thread: any.
class RegularExpressionTemplate {
public:
    RegularExpressionTemplate(const QString &text, int groupCount);

    // Appends the replacement for one match; `textOfGroup(n)` answers what group n matched.
    template <typename TextOfGroup>
    void appendTo(QString &result, TextOfGroup textOfGroup) const {
        for (const Piece &piece : m_pieces) {
            result.append(piece.literal);
            if (piece.group >= 0)
                result.append(textOfGroup(piece.group));
        }
    }

private:
    // Text, and the group behind it; -1 for none.
    struct Piece {
        QString literal;
        int group = -1;
    };

    std::vector<Piece> m_pieces;
};
