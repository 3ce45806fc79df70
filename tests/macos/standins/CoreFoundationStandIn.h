#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for Core Foundation: objects that are counted, and what tests make of values.

#include <CoreFoundation/CoreFoundation.h>

#include <QVariant>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace standin {

// What an object can be. Those of other services that are owned like these have no value.
enum class Kind : CFTypeID { Text = 1, Number, Boolean, Data, Date, Array, Dictionary, Url, Other };

struct Object {
    Kind kind = Kind::Other;
    long count = 1;
    QVariant value = {};                 // of a text, number, boolean, data, date; a URL's path
    std::vector<Object *> keys = {};     // of a dictionary, owned
    std::vector<Object *> elements = {}; // of an array or a dictionary, owned
    std::function<void()> released = {}; // called when the last reference goes
};

// A new object with one reference, to be given to who takes references over. Maps and lists become
// dictionaries and arrays.
Object *make(const QVariant &value);
Object *makeUrl(const QString &path);
Object *makeOther(std::function<void()> released = {});

// The object behind a reference. Ends the test program when it is none, or none any more.
Object *objectOf(const void *reference);

template <typename Reference>
Reference referenceTo(Object *object) {
    return reinterpret_cast<Reference>(object);
}

// How many objects are alive, those for constant texts not counted. A test of an owner expects none
// to be left.
long aliveObjects();

// What addresses the files have, by path. Other paths have none.
struct Files {
    std::map<QString, QString> aliases;       // from the path to that at the end of the chain
    std::map<QString, QVariantMap> resources; // by path: data by "TYPE number"
    int openResourceFiles = 0;
    std::vector<QString> missing;                 // nothing is at these paths
    std::map<QByteArray, QVariant> propertyLists; // by content; all else is malformed
};
extern Files files;

// The number of sources in the main run loop.
extern int runLoopSources;

} // namespace standin
