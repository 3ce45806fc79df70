// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/BundleRecord.h"

#include "Platform/PropertyList.h"
#include "Platform/linux/BundleIconFile.h"
#include "Platform/linux/registration/BundleFileTypes.h"
#include "Platform/linux/registration/BundleIcons.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

bool isTrue(const QVariant &value) {
    const QString text = value.toString().toLower();
    return value.toBool() && text != u"no"_s;
}

// The bundle's identifier where it can name a file, else one made of the bundle's name.
QString identifierOf(const Bundle &bundle, const QString &installedPath) {
    static const QRegularExpression usable(u"\\A[A-Za-z0-9][A-Za-z0-9._-]{0,199}\\z"_s);
    const QString identifier =
        bundle.stringForKey(u"CFBundleIdentifier"_s).value_or(QString()).trimmed();
    if (usable.match(identifier).hasMatch())
        return identifier;
    static const QRegularExpression unusable(u"[^A-Za-z0-9._-]+"_s);
    QString name = QFileInfo(installedPath).completeBaseName();
    name.replace(unusable, u"-"_s);
    return u"bundle-"_s + name.left(150);
}

// Desktops write "zh_CN" where bundles say "zh-Hans", and bundles of old name languages in English.
QString localeOfFolder(const QString &name) {
    static const QMap<QString, QString> others = {
        {u"English"_s, u"en"_s},  {u"French"_s, u"fr"_s},     {u"German"_s, u"de"_s},
        {u"Italian"_s, u"it"_s},  {u"Spanish"_s, u"es"_s},    {u"Dutch"_s, u"nl"_s},
        {u"Japanese"_s, u"ja"_s}, {u"zh-Hans"_s, u"zh_CN"_s}, {u"zh-Hant"_s, u"zh_TW"_s},
    };
    const QString locale = others.value(name, QString(name).replace(u'-', u'_'));
    static const QRegularExpression usable(u"\\A[a-z]{2,3}(_[A-Z]{2})?\\z"_s);
    return usable.match(locale).hasMatch() ? locale : QString();
}

QString nameIn(const QVariantMap &dictionary) {
    for (const QString &key : {u"CFBundleDisplayName"_s, u"CFBundleName"_s}) {
        const QString name = dictionary.value(key).toString().simplified().left(200);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

void addNames(ApplicationRecord &record, const Bundle &bundle, const QString &installedPath) {
    QString name = nameIn(bundle.infoDictionary());
    if (name.isEmpty())
        name = QFileInfo(installedPath).completeBaseName().simplified();
    record.names.push_back({{}, name.toStdString()});
    const QDir resources(bundle.resourcesPath());
    for (const QString &folder : resources.entryList({u"*.lproj"_s}, QDir::Dirs, QDir::Name)) {
        const QString locale = localeOfFolder(folder.chopped(6));
        const Result<QVariant> strings =
            readPropertyList(resources.filePath(folder + u"/InfoPlist.strings"_s));
        const QString localized = strings ? nameIn((*strings).toMap()) : QString();
        if (!locale.isEmpty() && !localized.isEmpty())
            record.names.push_back({locale.toStdString(), localized.toStdString()});
    }
}

// Bundles name one category of a shop; menus have categories of their own.
void addCategories(ApplicationRecord &record, const QVariantMap &information) {
    struct Row {
        QLatin1StringView category;
        std::vector<std::string> menus;
    };
    static const std::array<Row, 16> rows = {{
        {"business"_L1, {"Office"}},
        {"developer-tools"_L1, {"Development"}},
        {"education"_L1, {"Education"}},
        {"entertainment"_L1, {"AudioVideo"}},
        {"finance"_L1, {"Office", "Finance"}},
        {"games"_L1, {"Game"}},
        {"graphics-design"_L1, {"Graphics"}},
        {"medical"_L1, {"Science", "MedicalSoftware"}},
        {"music"_L1, {"AudioVideo", "Audio"}},
        {"news"_L1, {"Network", "News"}},
        {"photography"_L1, {"Graphics", "Photography"}},
        {"productivity"_L1, {"Office"}},
        {"reference"_L1, {"Office", "Dictionary"}},
        {"social-networking"_L1, {"Network"}},
        {"utilities"_L1, {"Utility"}},
        {"video"_L1, {"AudioVideo", "Video"}},
    }};
    QString category = information.value(u"LSApplicationCategoryType"_s).toString();
    category.remove(u"public.app-category."_s);
    if (category.endsWith(u"-games"_s))
        category = u"games"_s;
    for (const Row &row : rows) {
        if (category == row.category)
            record.categories = row.menus;
    }
}

} // namespace

Result<ApplicationRecord> recordOfBundle(const Bundle &bundle, const QString &installedPath) {
    const std::string path = QFile::encodeName(installedPath).toStdString();
    if (bundle.executablePath().isEmpty())
        return Error{"register", path, "the bundle has no program"};
    ApplicationRecord record;
    record.identifier = identifierOf(bundle, installedPath).toStdString();
    record.bundlePath = path;
    record.executable =
        QFile::encodeName(QDir(bundle.path()).relativeFilePath(bundle.executablePath()))
            .toStdString();
    addNames(record, bundle, installedPath);
    const QVariantMap &information = bundle.infoDictionary();
    addCategories(record, information);
    addFileTypes(record, information);
    if (const auto icon = iconFileOf(bundle))
        record.icons = iconsOfPicture(*icon);
    record.isBackgroundOnly = isTrue(information.value(u"LSBackgroundOnly"_s)) ||
                              isTrue(information.value(u"LSUIElement"_s));
    if (Result<void> acceptable = checkRecord(record); !acceptable)
        return acceptable.error();
    return record;
}

} // namespace zt
