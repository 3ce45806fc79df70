// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/CollectedChild.h"

#include "Platform/linux/ProgramStart.h"
#include "Platform/posix/SystemCalls.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdlib> // mkostemp
#include <new>

namespace zt {

namespace {

// More than anybody can want to look at as one text.
constexpr off_t largestOutput = off_t(1) << 30;

std::vector<std::string> encoded(const QStringList &texts) {
    std::vector<std::string> bytes;
    for (const QString &text : texts)
        bytes.push_back(QFile::encodeName(text).toStdString());
    return bytes;
}

// The file's content up to the size that it has now; who still writes does not hold this up.
Result<QByteArray> contentOf(int file, const std::string &path) {
    const std::optional<struct stat> status = statusOf(file);
    if (!status)
        return Error::fromErrno("read", path);
    if (status->st_size > largestOutput)
        return Error::fromErrno("read", path, EFBIG);
    QByteArray content(static_cast<qsizetype>(status->st_size), Qt::Uninitialized);
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t count = retryInterrupted([&] {
            return ::pread(file, content.data() + done,
                           static_cast<std::size_t>(content.size() - done), done);
        });
        if (count < 0)
            return Error::fromErrno("read", path);
        if (count == 0)
            break;
        done += count;
    }
    content.truncate(done);
    return content;
}

} // namespace

Result<std::unique_ptr<ChildProcess>> CollectedChild::start(const ChildProcesses::Program &program,
                                                            LeftChildren &leftChildren) {
    std::string path = QFile::encodeName(QDir::tempPath()).toStdString() + "/velmora-XXXXXX";
    // Every write goes to the end, also where the child opens its output anew by name.
    UniqueFd file(::mkostemp(path.data(), O_CLOEXEC | O_APPEND));
    if (!file)
        return Error::fromErrno("make temporary file", path);
    Result<OwnedChild> child =
        startProgram({.program = QFile::encodeName(program.path).toStdString(),
                      .arguments = encoded(program.arguments),
                      .workingFolder = QFile::encodeName(program.workingFolder).toStdString(),
                      .group = ProgramStart::Group::Own,
                      .hasInput = false,
                      .output = file.get(),
                      .errors = file.get()});
    if (!child)
        return child.error();
    return std::unique_ptr<ChildProcess>(
        new CollectedChild(std::move(*child), std::move(file), std::move(path), leftChildren));
}

CollectedChild::CollectedChild(OwnedChild child, UniqueFd file, std::string path,
                               LeftChildren &leftChildren)
    : m_child(std::move(child))
    , m_file(std::move(file))
    , m_path(std::move(path))
    , m_leftChildren(leftChildren) {}

CollectedChild::~CollectedChild() {
    ::unlink(m_path.c_str());
    if (m_isTerminated)
        m_leftChildren.take(std::move(m_child), LeftChildren::Fate::MustEnd);
    else if (!m_child.hasEnded())
        m_leftChildren.take(std::move(m_child), LeftChildren::Fate::MayGoOn);
}

bool CollectedChild::isRunning() {
    return !m_child.hasEnded();
}

void CollectedChild::terminate() {
    if (m_child.hasEnded())
        return;
    m_isTerminated = true;
    m_child.signalGroup(SIGTERM);
    m_child.signalGroup(SIGCONT); // who is stopped does not hear of it
}

Result<QByteArray> CollectedChild::output() {
    try {
        return contentOf(m_file.get(), m_path);
    } catch (const std::bad_alloc &) {
        return Error::fromErrno("read", m_path, ENOMEM);
    }
}

} // namespace zt
