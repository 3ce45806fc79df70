// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/text/BenchText.h"

QString repeatedToLength(QStringView pattern, qsizetype units) {
    return pattern.toString().repeated(units / pattern.size() + 1).left(units);
}

QString proseOfLength(qsizetype units) {
    return repeatedToLength(u"The quick brown fox, number 42, jumps over the lazy dog.\n"
                            u"In the caf\u00E9 at 17:05 it had a cr\u00E8me and paid 3.50; then\n"
                            u"it left.\n\nNothing else happened on page 1234 of the file\n",
                            units);
}
