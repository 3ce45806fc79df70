#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/ApplicationRecord.h"

// A record with something of everything.
inline zt::ApplicationRecord sampleRecord() {
    zt::ApplicationRecord record;
    record.identifier = "com.example.Notes";
    record.bundlePath = "/Applications/Notes.app";
    record.executable = "Contents/Linux/Notes";
    record.names = {{"", "Notes"}, {"de", "Notizen"}};
    record.categories = {"Office"};
    record.mimeTypes = {"text/plain", "application/x-note", "x-scheme-handler/note"};
    record.newFileTypes = {{"application/x-note", "A <note> & more", {"note", "nt"}}};
    record.icons = {{zt::ApplicationRecord::Icon::scalable, "<svg/>"},
                    {48, "\x89PNG made up"},
                    {256, std::string("\x89PNG with a \0 in it", 19)}};
    return record;
}
