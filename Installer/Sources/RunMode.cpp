// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/RunMode.h"

#include "Installer/Sources/InstallerArguments.h"
#include "Installer/Sources/LocalizedString.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct KnownValue {
    QString value;
    RunMode mode;
};

// The mode that the key's value stands for, or what is wrong with it. A key without a value is
// wrong too: whoever wrote it wanted something.
RunChoice choiceUnder(const QString &key, const QList<KnownValue> &known,
                      const QStringList &argumentVector, const QVariantMap &arguments) {
    if (!argumentVector.contains(u'-' + key) && !arguments.contains(key))
        return {};
    const QString given = InstallerArguments::stringArgument(arguments, key).value_or(QString());
    QStringList values;
    for (const KnownValue &candidate : known) {
        if (candidate.value == given)
            return {candidate.mode};
        values << candidate.value;
    }
    return {RunMode::Mistake,
            ZTFormat(localizedString("The value of %1$@ must be one of %2$@, not \"%3$@\"."),
                     u'-' + key, values.join(u", "_s), given)};
}

} // namespace

RunChoice runChoice(const QStringList &argumentVector) {
    if (argumentVector.contains(u"--help"_s))
        return {RunMode::Help};
    if (argumentVector.contains(u"--version"_s))
        return {RunMode::Version};
    const QVariantMap arguments = InstallerArguments::dictionary(argumentVector);
    RunChoice check = choiceUnder(
        ZTInstallerCheck,
        {{u"YES"_s, RunMode::Check}, {u"JSON"_s, RunMode::CheckJson}, {u"NO"_s, RunMode::Window}},
        argumentVector, arguments);
    RunChoice unattended = choiceUnder(
        ZTInstallerUnattended, {{u"YES"_s, RunMode::Unattended}, {u"NO"_s, RunMode::Window}},
        argumentVector, arguments);
    if (check.mode == RunMode::Mistake || unattended.mode == RunMode::Window)
        return check;
    return unattended.mode == RunMode::Mistake || check.mode == RunMode::Window
               ? std::move(unattended)
               : std::move(check);
}
