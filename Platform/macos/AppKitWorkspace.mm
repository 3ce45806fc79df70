// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppKitWorkspace.h"

#include "Platform/Log.h"
#include "Platform/macos/FileReference.h"
#include "Platform/macos/FoundationText.h"
#include "Platform/macos/LaunchServicesRegistration.h"
#include "Platform/macos/VolumePath.h"

#import <AppKit/AppKit.h>

#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <string>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// The image in the size, through a form that both sides know.
QImage imageOf(NSImage *image, int size) {
    NSRect rectangle = NSMakeRect(0, 0, size, size);
    CGImageRef const native = [image CGImageForProposedRect:&rectangle context:nil hints:nil];
    if (!native)
        return {};
    NSBitmapImageRep *const bitmap = [[NSBitmapImageRep alloc] initWithCGImage:native];
    NSData *const bytes = [bitmap representationUsingType:NSBitmapImageFileTypePNG properties:@{}];
    return QImage::fromData(static_cast<const uchar *>(bytes.bytes), int(bytes.length), "PNG");
}

} // namespace

QIcon AppKitWorkspace::iconForFile(const QString &path) {
    if (!QFileInfo::exists(path))
        return {};
    @autoreleasepool {
        NSImage *const image = [[NSWorkspace sharedWorkspace] iconForFile:nativeTextOf(path)];
        QIcon icon;
        for (const int size : {16, 32, 64, 128, 256, 512}) {
            const QImage drawn = imageOf(image, size);
            if (!drawn.isNull())
                icon.addPixmap(QPixmap::fromImage(drawn));
        }
        return icon;
    }
}

bool AppKitWorkspace::openFile(const QString &path) {
    @autoreleasepool {
        return [[NSWorkspace sharedWorkspace] openFile:nativeTextOf(path)] != NO;
    }
}

void AppKitWorkspace::startOpening(const QString &path) {
    if (path.isEmpty() || !QFileInfo::exists(path))
        return;
    @autoreleasepool {
        NSTask *const task = [[NSTask alloc] init];
        task.launchPath = @"/usr/bin/open";
        task.arguments = @[ nativeTextOf(QFileInfo(path).absoluteFilePath()) ];
        @try {
            [task launch];
        } @catch (NSException *exception) {
            m_log.writeLine("open " + path.toStdString() + ": " +
                            textOf(exception.reason).toStdString());
        }
    }
}

std::optional<QString> AppKitWorkspace::targetOfAlias(const QString &path) const {
    return targetOfAliasFile(path);
}

std::optional<QString> AppKitWorkspace::volumeOf(const QString &path) const {
    return volumeOfPath(path);
}

std::int32_t AppKitWorkspace::registerApplication(const QString &path) {
    const std::int32_t status = registerWithLaunchServices(path);
    if (status != noErr)
        m_log.writeLine("register " + path.toStdString() + ": error " + std::to_string(status));
    return status;
}

QByteArray AppKitWorkspace::registrationForTool(const QString & /*bundle*/,
                                                const QString & /*destination*/) {
    return {};
}

bool AppKitWorkspace::openUrl(const QUrl &url) {
    @autoreleasepool {
        NSURL *const address = [NSURL URLWithString:nativeTextOf(url.toString(QUrl::FullyEncoded))];
        return address && [[NSWorkspace sharedWorkspace] openURL:address];
    }
}

QString AppKitWorkspace::displayName(const QString &path) const {
    @autoreleasepool {
        return textOf([[NSFileManager defaultManager] displayNameAtPath:nativeTextOf(path)]);
    }
}

void AppKitWorkspace::noteFileSystemChanged(const QString &path) {
    @autoreleasepool {
        [[NSWorkspace sharedWorkspace] noteFileSystemChanged:nativeTextOf(path)];
    }
}

QStringList AppKitWorkspace::applicationsFolders(Domain domain) const {
    @autoreleasepool {
        NSArray<NSString *> *const folders = NSSearchPathForDirectoriesInDomains(
            NSApplicationDirectory, domain == Domain::Local ? NSLocalDomainMask : NSUserDomainMask,
            YES);
        QStringList paths;
        for (NSString *folder in folders)
            paths << textOf(folder);
        return paths;
    }
}

void AppKitWorkspace::beep() {
    NSBeep();
}

} // namespace zt
