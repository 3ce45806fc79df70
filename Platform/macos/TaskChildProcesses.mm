// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/TaskChildProcesses.h"

#include "Platform/macos/FoundationText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <csignal>  // kill
#include <unistd.h> // access

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// How long programs that were asked to end have for it.
constexpr std::int64_t patience = std::int64_t(1) * 1000 * 1000 * 1000; // nanoseconds

// Whether the program can be started at all, told as the system tells it. A task would only raise
// an exception.
Result<void> checkProgram(const QString &path) {
    const QByteArray bytes = QFile::encodeName(path);
    if (::access(bytes.constData(), X_OK) != 0)
        return Error::fromErrno("launch", bytes.toStdString());
    return {};
}

Result<void> launch(NSTask *task) {
    @try {
        [task launch];
        return {};
    } @catch (NSException *exception) {
        return Error{"launch", textOf(task.launchPath).toStdString(),
                     textOf(exception.reason).toStdString()};
    }
}

NSArray<NSString *> *nativeListOf(const QStringList &texts) {
    NSMutableArray<NSString *> *const list =
        [NSMutableArray arrayWithCapacity:NSUInteger(texts.size())];
    for (const QString &text : texts)
        [list addObject:nativeTextOf(text)];
    return list;
}

class TaskChild final : public ChildProcess {
public:
    TaskChild(NSTask *task, dispatch_semaphore_t end, std::unique_ptr<QTemporaryFile> file)
        : m_task(task)
        , m_end(end)
        , m_file(std::move(file)) {}

    bool isRunning() override { return m_task.running != NO; }

    void waitForEnd(std::chrono::microseconds atMost) override {
        const std::int64_t limit = std::chrono::nanoseconds(atMost).count();
        // Who waits later is to find the end as well.
        if (dispatch_semaphore_wait(m_end, dispatch_time(DISPATCH_TIME_NOW, limit)) == 0)
            dispatch_semaphore_signal(m_end);
    }

    void terminate() override {
        NSTask *const task = m_task;
        if (!task.running)
            return;
        [task terminate]; // and all that it has started
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, patience),
                       dispatch_get_global_queue(QOS_CLASS_UTILITY, 0), ^{
                         if (task.running)
                             ::kill(task.processIdentifier, SIGKILL);
                       });
    }

    Result<QByteArray> output() override {
        const std::string name = m_file->fileName().toStdString();
        if (!m_file->seek(0))
            return Error{"read", name, m_file->errorString().toStdString()};
        QByteArray bytes = m_file->readAll();
        if (m_file->error() != QFileDevice::NoError)
            return Error{"read", name, m_file->errorString().toStdString()};
        return bytes;
    }

private:
    NSTask *const m_task;
    dispatch_semaphore_t const m_end;
    std::unique_ptr<QTemporaryFile> m_file;
};

} // namespace

Result<std::unique_ptr<ChildProcess>> TaskChildProcesses::start(const Program &program) {
    auto file = std::make_unique<QTemporaryFile>(QDir::tempPath() + u"/output-XXXXXX"_s);
    file->setAutoRemove(false); // stays behind when the program cannot be started
    if (!file->open())
        return Error{"create", file->fileName().toStdString(), file->errorString().toStdString()};
    if (const Result<void> checked = checkProgram(program.path); !checked)
        return checked.error();
    @autoreleasepool {
        NSTask *const task = [[NSTask alloc] init];
        NSFileHandle *const output = [[NSFileHandle alloc] initWithFileDescriptor:file->handle()
                                                                   closeOnDealloc:NO];
        dispatch_semaphore_t const end = dispatch_semaphore_create(0);
        task.launchPath = nativeTextOf(program.path);
        task.arguments = nativeListOf(program.arguments);
        task.currentDirectoryPath = nativeTextOf(program.workingFolder);
        task.standardInput = [NSFileHandle fileHandleWithNullDevice];
        task.standardOutput = output;
        task.standardError = output;
        task.terminationHandler = ^(NSTask * /*ended*/) {
          dispatch_semaphore_signal(end);
        };
        if (const Result<void> launched = launch(task); !launched)
            return launched.error();
        file->setAutoRemove(true);
        return std::unique_ptr<ChildProcess>(
            std::make_unique<TaskChild>(task, end, std::move(file)));
    }
}

Result<QByteArray> TaskChildProcesses::standardOutputOfShell(const QString &commandLine) {
    @autoreleasepool {
        NSTask *const task = [[NSTask alloc] init];
        NSPipe *const pipe = [NSPipe pipe];
        task.launchPath = @"/bin/sh";
        task.arguments = @[ @"-c", nativeTextOf(commandLine) ];
        task.standardOutput = pipe;
        if (const Result<void> launched = launch(task); !launched)
            return launched.error();
        NSData *const data = [pipe.fileHandleForReading readDataToEndOfFile];
        return QByteArray(static_cast<const char *>(data.bytes), qsizetype(data.length));
    }
}

} // namespace zt
