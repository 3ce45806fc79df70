#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts at random, the same ones in every run.

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

class RandomText {
public:
    // The number of cases that a property is tried on.
    static constexpr int caseCount = 10000;

    int number(int smallest, int largest) {
        return std::uniform_int_distribution<int>(smallest, largest)(m_generator);
    }

    // Mostly units of `favourites`, among them ASCII with its controls, surrogates with and without
    // a partner, and any other unit.
    QString text(QStringView favourites, int longest = 24) {
        QString result;
        for (int count = number(0, longest); count > 0; --count) {
            const int kind = number(0, 99);
            if (kind < 65)
                result.append(favourites[number(0, static_cast<int>(favourites.size()) - 1)]);
            else if (kind < 80)
                result.append(QChar(char16_t(number(0, 0x7F))));
            else if (kind < 86)
                result.append(QChar(char16_t(number(0xD800, 0xDBFF))));
            else if (kind < 92)
                result.append(QChar(char16_t(number(0xDC00, 0xDFFF))));
            else if (kind < 96)
                result.append(QChar::fromUcs4(char32_t(number(0x10000, 0x10FFFF))));
            else
                result.append(QChar(char16_t(number(0, 0xFFFF))));
        }
        return result;
    }

private:
    std::mt19937 m_generator{20260101}; // NOLINT(cert-msc51-cpp): the same in every run
};

// The last units in hexadecimal, for messages.
inline std::string unitsOf(const QString &text) {
    std::string units;
    constexpr qsizetype most = 100;
    for (const QChar unit : QStringView(text).last(std::min(text.size(), most)))
        units += QString::number(unit.unicode(), 16).toStdString() + ' ';
    return units;
}

// Whether the two are one object: both texts lie in the same storage.
inline bool isSameObject(const QString &a, const QString &b) {
    return a.constData() == b.constData() && a.size() == b.size();
}

// Tries a property on many random cases, until one fails.
template <typename Case>
void forRandomCases(Case tryCase) {
    RandomText random;
    for (int index = 0; index < RandomText::caseCount && !testing::Test::HasFailure(); ++index)
        tryCase(random);
}
