// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tool takes from a source that somebody prepared to get more than he may have.

#include "Installer/train/ExitStatus.h"
#include "tests/privileged/train/TrainFixture.h"
#include "tests/unit/copy/ChildProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

namespace zt::testing {
namespace {

using ::testing::IsEmpty;

constexpr int refused = static_cast<int>(ExitStatus::Refused);
constexpr int copyFailed = static_cast<int>(ExitStatus::CopyFailed);

// A source that is none, and how the world is made so.
struct SourceRow {
    const char *reason;
    std::function<std::string(const TemporaryFolder &world)> prepare; // answers the source
    const char *inLog;
};

void PrintTo(const SourceRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class TrainSourceAttackTest : public TrainTest, public ::testing::WithParamInterface<SourceRow> {};

TEST_P(TrainSourceAttackTest, whatIsNoBundleOfTheAskersIsRefused) {
    const std::string source = GetParam().prepare(m_world);
    expectRefused({{source, m_destination}}, refused, GetParam().inLog);
}

// A bundle of the asker's whose dictionary is made by the caller.
std::string bundleWith(const TemporaryFolder &world,
                       const std::function<void(const std::string &dictionary)> &make) {
    std::string bundle = world.makeFolder("medium/Other.app");
    world.makeFile("medium/Other.app/Contents/file", "x");
    make(bundle + "/Contents/Info.plist");
    return bundle;
}

INSTANTIATE_TEST_SUITE_P(
    Sources, TrainSourceAttackTest,
    ::testing::Values(
        SourceRow{"missing", [](auto &world) { return world.path("medium/Missing.app"); },
                  "No such file or directory"},
        SourceRow{"link",
                  [](auto &world) {
                      return world.makeLink("medium/Link.app", world.path("medium/Product.app"));
                  },
                  "Link.app"},
        SourceRow{
            "linkToRootsOwnFolder",
            [](auto &world) { return world.makeLink("medium/Link.app", world.path("private")); },
            "Link.app"},
        SourceRow{"linkOnTheWay",
                  [](auto &world) {
                      world.makeLink("other", world.path("medium"));
                      return world.path("other/Product.app");
                  },
                  "other/Product.app"},
        SourceRow{"linkOfTheKernel", [](auto &) { return std::string("/proc/self/cwd/mnt"); },
                  "/proc/self"},
        SourceRow{"file", [](auto &world) { return world.makeFile("medium/File.app", "x"); },
                  "Not a directory"},
        SourceRow{"pipe",
                  [](auto &world) {
                      ::mkfifo(world.path("medium/Pipe.app").c_str(), 0666);
                      return world.path("medium/Pipe.app");
                  },
                  "Not a directory"},
        SourceRow{"rootsOwnFolder", [](auto &world) { return world.path("private"); },
                  "Permission denied"},
        SourceRow{"belowRootsOwnFolder",
                  [](auto &world) {
                      world.makeFile("private/Product.app/Contents/Info.plist", "x");
                      return world.path("private/Product.app");
                  },
                  "Permission denied"},
        SourceRow{"folderWithoutDictionary",
                  [](auto &world) { return bundleWith(world, [](const std::string &) {}); },
                  "it is not a bundle"},
        SourceRow{"folderInPlaceOfTheDictionary",
                  [](auto &world) {
                      return bundleWith(world, [](const std::string &dictionary) {
                          ::mkdir(dictionary.c_str(), 0755);
                      });
                  },
                  "it is not a bundle"},
        SourceRow{"pipeInPlaceOfTheDictionary",
                  [](auto &world) {
                      return bundleWith(world, [](const std::string &dictionary) {
                          ::mkfifo(dictionary.c_str(), 0666);
                      });
                  },
                  "it is not a bundle"},
        SourceRow{"dictionaryThatLeadsOutOfTheBundle",
                  [](auto &world) {
                      world.makeFile("medium/Info.plist", "x");
                      return bundleWith(world, [](const std::string &dictionary) {
                          ::symlink("../../Info.plist", dictionary.c_str());
                      });
                  },
                  "it is not a bundle"}));

using TrainSourceTest = TrainTest;

TEST_F(TrainSourceTest, everyLayoutOfABundleIsInstalled) {
    for (const char *dictionary :
         {"Contents/Info.plist", "Info.plist", "Resources/Info-gnustep.plist"}) {
        const std::string bundle = m_world.makeFolder("medium/Layout.app");
        m_world.makeFile(std::string("medium/Layout.app/") + dictionary, dictionary);
        const TrainEnd end = train({{bundle, m_world.path("Applications/Layout.app")}});
        EXPECT_EQ(end.status, 0) << end.log;
        EXPECT_EQ(contentOf(m_world.path("Applications/Layout.app/") + dictionary), dictionary);
        std::filesystem::remove_all(bundle);
        std::filesystem::remove_all(m_world.path("Applications/Layout.app"));
    }
}

TEST_F(TrainSourceTest, setUserIdAndSetGroupIdBitsStayBehind) {
    for (const uid_t owner : {uid_t(0), asker}) {
        const std::string program =
            m_world.makeFile("medium/Product.app/Contents/p" + std::to_string(owner), "x");
        ASSERT_EQ(::chown(program.c_str(), owner, owner), 0);
        ASSERT_EQ(::chmod(program.c_str(), 06755), 0);
    }
    ASSERT_EQ(::chmod(inProduct("0").c_str(), 02777), 0);
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(wrongRightsBelow(m_destination), "");
    struct stat status = {};
    ASSERT_EQ(::stat(installed("p0").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0755U);
}

TEST_F(TrainSourceTest, capabilitiesStayBehind) {
    const std::string program = m_world.makeFile("medium/Product.app/Contents/p", "x", 0755);
    // Revision 2, effective: every capability permitted.
    const std::string capability("\1\0\0\2\xFF\xFF\xFF\xFF\0\0\0\0\xFF\1\0\0\0\0\0\0", 20);
    ASSERT_EQ(::setxattr(program.c_str(), "security.capability", capability.data(), 20, 0), 0);
    ASSERT_EQ(::setxattr(program.c_str(), "user.note", "1", 1, 0), 0);
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(wrongRightsBelow(m_destination), "");
    EXPECT_EQ(::getxattr(installed("p").c_str(), "user.note", nullptr, 0), 1);
}

TEST_F(TrainSourceTest, nobodyElseMayWriteToTheCopy) {
    ASSERT_TRUE(runQuietly("chmod -R a+rwX " + m_source));
    runQuietly("setfacl -R -m u:4242:rwx,d:u:4242:rwx " + m_source);
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(wrongRightsBelow(m_destination), "");
    EXPECT_EQ(asOrdinaryUser([&]() -> std::string {
                  return ::access(installed("version").c_str(), W_OK) == 0 ||
                                 ::access(installed("0").c_str(), W_OK) == 0
                             ? "it can be changed"
                             : "";
              }),
              "");
}

TEST_F(TrainSourceTest, aLinkToASecretIsCopiedAsALink) {
    m_world.makeLink("medium/Product.app/Contents/innocent", m_secret);
    m_world.makeLink("medium/Product.app/Contents/folder", m_world.path("private"));
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(std::filesystem::read_symlink(installed("innocent")), m_secret);
    EXPECT_TRUE(std::filesystem::is_symlink(installed("folder")));
}

TEST_F(TrainSourceTest, aFileThatTheAskersSecondGroupMayReadIsCopied) {
    const std::string file = m_world.makeFile("medium/Product.app/Contents/shared", "x", 0640);
    ASSERT_EQ(::chown(file.c_str(), 0, askersSecondGroup), 0);
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(contentOf(installed("shared")), "x");
}

// Something in the source that cannot be had: the copy ends, and nothing of it stays.
struct PayloadRow {
    const char *reason;
    std::function<void(const std::string &path, const std::string &secret)> make;
    const char *inLog;
};

void PrintTo(const PayloadRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class TrainPayloadTest : public TrainTest, public ::testing::WithParamInterface<PayloadRow> {};

TEST_P(TrainPayloadTest, theInstallationEndsAndNothingOfItStays) {
    GetParam().make(inProduct("payload"), m_secret);
    const auto before = rest();
    const TrainEnd end = train();
    EXPECT_EQ(end.status, copyFailed) << end.log;
    EXPECT_EQ(end.signal, 0);
    EXPECT_NE(end.log.find(GetParam().inLog), std::string::npos) << end.log;
    EXPECT_NE(end.log.find("ERROR -- Could not copy myself to " + m_destination),
              std::string::npos);
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    EXPECT_EQ(rest(), before);
}

void makeSocket(const std::string &path) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(static_cast<char *>(address.sun_path), path.c_str(), sizeof address.sun_path - 1);
    const void *pointer = &address;
    ASSERT_EQ(::bind(descriptor, static_cast<const sockaddr *>(pointer), sizeof address), 0);
    ::close(descriptor);
}

constexpr const char *ofAnotherKind = "it is neither a file nor a folder nor a link";

INSTANTIATE_TEST_SUITE_P(
    Payloads, TrainPayloadTest,
    ::testing::Values(
        PayloadRow{
            "hardLinkToASecret",
            [](auto &path, auto &secret) { std::filesystem::create_hard_link(secret, path); },
            "payload: Permission denied"},
        PayloadRow{"fileOfRootsAlone",
                   [](auto &path, auto &secret) {
                       std::filesystem::copy_file(secret, path);
                       ::chmod(path.c_str(), 0600);
                   },
                   "payload: Permission denied"},
        PayloadRow{"folderOfRootsAlone",
                   [](auto &path, auto &secret) {
                       ::mkdir(path.c_str(), 0700);
                       std::filesystem::copy_file(secret, path + "/file");
                   },
                   "payload: Permission denied"},
        PayloadRow{"pipe", [](auto &path, auto &) { ::mkfifo(path.c_str(), 0666); }, ofAnotherKind},
        PayloadRow{"socket", [](auto &path, auto &) { makeSocket(path); }, ofAnotherKind},
        PayloadRow{
            "diskDevice",
            [](auto &path, auto &) { ::mknod(path.c_str(), S_IFBLK | 0666, ::makedev(7, 0)); },
            ofAnotherKind},
        PayloadRow{
            "endlessDevice",
            [](auto &path, auto &) { ::mknod(path.c_str(), S_IFCHR | 0666, ::makedev(1, 5)); },
            ofAnotherKind}));

} // namespace
} // namespace zt::testing
