// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/InstallFixture.h"
#include "tests/unit/copy/SystemCallWatch.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <ostream>
#include <string>

namespace zt::testing {
namespace {

constexpr const char *cannotMake = "this machine cannot make or mount such a volume";

// A way to bring a file system to a folder, told by shell commands that find the image's path as
// $image and the folder's as $folder.
struct VolumeKind {
    const char *name;
    const char *commands;
    // How a copy of the image is mounted beside it.
    const char *twinOptions = "loop";
};

void PrintTo(const VolumeKind &kind, std::ostream *stream) {
    *stream << kind.name;
}

bool runFor(const std::string &image, const std::string &folder, const std::string &commands) {
    return runQuietly("PATH=$PATH:/usr/sbin:/sbin; image='" + image + "'; folder='" + folder +
                      "'; { " + commands + "; }");
}

class VolumeTest : public InstallTest, public ::testing::WithParamInterface<VolumeKind> {
protected:
    VolumeTest() {
        m_world.makeFolder("volume");
        m_world.makeFile("medium/Product.app/Contents/program", std::string(300'000, 'p'), 0755);
        m_world.makeFolder("medium/Product.app/Contents/empty");
    }

    // Runs the body with the volume mounted at "volume"; what it answers must be empty.
    void withVolume(const std::function<std::string()> &body) {
        const std::string outcome = withPrivateMounts([&]() -> std::string {
            if (!runFor(m_world.path("image"), m_world.path("volume"), GetParam().commands))
                return cannotMake;
            std::string failure = body();
            // What serves a volume from user space must not outlive the test.
            runFor({}, m_world.path("volume"), "umount \"$folder\"");
            return failure;
        });
        if (outcome == cannotMount || outcome == cannotMake)
            GTEST_SKIP() << outcome;
        EXPECT_EQ(outcome, "");
    }
};

std::string difference(const std::string &original, const std::string &copy) {
    const auto originals = describeTree(original);
    const auto copies = describeTree(copy);
    return originals == copies ? ""
                               : ::testing::PrintToString(originals) + " is not " +
                                     ::testing::PrintToString(copies);
}

class MediumTest : public VolumeTest {};

TEST_P(MediumTest, aProductIsInstalledFromAnImageThatCannotBeWritten) {
    withVolume([this]() -> std::string {
        const std::string product = m_world.path("volume/Product.app");
        InstallServices proving = services();
        proving.proof = Proof::Compared;
        if (install({product, m_destination, {}}, proving) != InstallResult::Success)
            return ::testing::PrintToString(m_log);
        return difference(product, m_destination);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Images, MediumTest,
    ::testing::Values(VolumeKind{"squashfs", "mksquashfs \"${folder%/*}/medium\" \"$image\" && "
                                             "mount -o loop,ro \"$image\" \"$folder\""},
                      VolumeKind{"iso9660", "genisoimage -R -o \"$image\" \"${folder%/*}/medium\" "
                                            "&& mount -t iso9660 -o loop,ro \"$image\" "
                                            "\"$folder\""},
                      VolumeKind{"iso9660InUserSpace",
                                 "genisoimage -R -o \"$image\" \"${folder%/*}/medium\" && "
                                 "fuseiso \"$image\" \"$folder\""}),
    [](const auto &row) { return row.param.name; });

class TargetVolumeTest : public VolumeTest {};

TEST_P(TargetVolumeTest, aProductIsInstalledThere) {
    withVolume([this]() -> std::string {
        m_destination = m_world.path("volume/Product.app");
        for (int round = 0; round < 2; ++round) {
            InstallServices durable = services();
            durable.durability = Durability::Durable;
            durable.proof = Proof::Compared;
            if (install({m_source, m_destination, {}}, durable) != InstallResult::Success)
                return ::testing::PrintToString(m_log);
            if (std::string found = difference(m_source, m_destination); !found.empty())
                return found;
        }
        return trashedVersions().size() == 1 ? "" : "the first copy is not in the Trash";
    });
}

TEST_P(TargetVolumeTest, aProductOfTheVolumeItselfIsInstalledThere) {
    withVolume([this]() -> std::string {
        const std::string source = makeProduct("volume/Medium/Product.app", "new");
        m_destination = m_world.path("volume/Product.app");
        if (install({source, m_destination, {}}) != InstallResult::Success)
            return ::testing::PrintToString(m_log);
        return difference(source, m_destination);
    });
}

TEST_P(TargetVolumeTest, aHugeFileOfHolesFits) {
    withVolume([this]() -> std::string {
        const std::string huge = m_world.makeFile("medium/Product.app/huge", "begin");
        constexpr off_t size = off_t(10) * 1000 * 1000 * 1000;
        if (::truncate(huge.c_str(), size) != 0)
            return cannotMake;
        m_destination = m_world.path("volume/Product.app");
        if (install({m_source, m_destination, {}}) != InstallResult::Success)
            return ::testing::PrintToString(m_log);
        struct stat status = {};
        ::stat((m_destination + "/huge").c_str(), &status);
        return status.st_size == size && status.st_blocks < 1000 ? "" : "it is no longer of holes";
    });
}

TEST_P(TargetVolumeTest, aVolumeThatIsFullIsToldAndHasNothingUnfinished) {
    for (int i = 0; i < 60; ++i)
        m_world.makeFile("medium/Product.app/large/" + std::to_string(i),
                         std::string(7'000'000, 'x'));
    withVolume([this]() -> std::string {
        m_destination = m_world.path("volume/Product.app");
        const auto before = namesIn(m_world.path("volume"));
        if (install({m_source, m_destination, {}}) != InstallResult::CopyFailed)
            return "it was not told";
        if (m_log.front().find("No space left on device") == std::string::npos)
            return m_log.front();
        return namesIn(m_world.path("volume")) == before ? "" : "something is left";
    });
}

// 300 MB is the least that XFS is made in.
INSTANTIATE_TEST_SUITE_P(
    Volumes, TargetVolumeTest,
    ::testing::Values(VolumeKind{"tmpfs", "mount -t tmpfs -o size=300m tmpfs \"$folder\""},
                      VolumeKind{"ext4",
                                 "truncate -s 300M \"$image\" && mkfs.ext4 -F \"$image\" && "
                                 "mount -o loop \"$image\" \"$folder\""},
                      VolumeKind{"xfs", "truncate -s 320M \"$image\" && mkfs.xfs \"$image\" && "
                                        "mount -o loop \"$image\" \"$folder\""},
                      VolumeKind{"btrfs", "truncate -s 300M \"$image\" && mkfs.btrfs \"$image\" && "
                                          "mount -o loop \"$image\" \"$folder\""}),
    [](const auto &row) { return row.param.name; });

class PowerTest : public VolumeTest {
protected:
    // What is on the medium at this moment, mounted as a machine would after it lost its power.
    std::string afterPowerFailure() {
        const std::string command = "cp --sparse=always \"$image\" \"$image.now\" && mount -o " +
                                    std::string(GetParam().twinOptions) +
                                    " \"$image.now\" \"$folder-now\"";
        if (!runFor(m_world.path("image"), m_world.path("volume"), command))
            return "the volume is broken";
        m_trashPath = m_world.path("volume-now/home/Trash");
        const std::string version = versionAt(m_world.path("volume-now/Product.app"));
        std::string found = version + " in Trash:";
        for (const std::string &trashed : trashedVersions())
            found += ' ' + trashed;
        runFor(m_world.path("image"), m_world.path("volume"),
               R"(umount "$folder-now"; rm "$image.now")");
        return found;
    }

    std::string installedThroughPowerFailures() {
        m_world.makeFolder("volume-now");
        makeProduct("volume/Product.app", "old");
        m_world.makeFolder("volume/home");
        ::sync();
        FreedesktopTrash trash({.dataHome = m_world.path("volume/home"),
                                .user = ::geteuid(),
                                .topDirectoryOf = [top = m_world.path("volume")](
                                                      const std::string &) { return top; }});
        m_usedTrash = &trash;
        m_destination = m_world.path("volume/Product.app");
        std::string wrong;
        int moments = 0;
        const auto status = runWatched(
            [this] {
                InstallServices durable = services();
                durable.durability = Durability::Durable;
                return static_cast<int>(install({m_source, m_destination, {}}, durable));
            },
            WatchedCalls::Changing,
            [&](int number, const std::string &name) {
                const bool isTurningPoint =
                    name.starts_with("rename") || name == "fsync" || name == "syncfs";
                if (isTurningPoint || number % 16 == 0) {
                    const std::string found = afterPowerFailure();
                    ++moments;
                    if (found != "old in Trash:" && found != "new in Trash: old" &&
                        found != "<missing> in Trash: old") {
                        wrong += "before call " + std::to_string(number) + ' ' + name + ": " +
                                 found + '\n';
                    }
                }
                return CallFate{};
            });
        if (status != 0 || moments < 10)
            return "the installation was not made";
        const std::string atEnd = afterPowerFailure();
        return atEnd == "new in Trash: old" ? wrong : wrong + "at the end: " + atEnd;
    }
};

TEST_P(PowerTest, aPowerFailureAtAnyMomentLeavesAWholeCopy) {
    if (!canWatchCalls())
        GTEST_SKIP() << "this machine lets no process step in at another's system calls";
    withVolume([this] { return installedThroughPowerFailures(); });
}

// Past the cache of the file system that the image lies in, so that the image has what a disk would
// have.
INSTANTIATE_TEST_SUITE_P(
    Volumes, PowerTest,
    ::testing::Values(VolumeKind{"ext4",
                                 "truncate -s 32M \"$image\" && mkfs.ext4 -F \"$image\" && "
                                 "loop=$(losetup --direct-io=on --find --show \"$image\") && "
                                 "{ mount $loop \"$folder\"; status=$?; losetup -d $loop; "
                                 "test $status = 0; }"},
                      VolumeKind{"xfs",
                                 "truncate -s 320M \"$image\" && mkfs.xfs \"$image\" && "
                                 "loop=$(losetup --direct-io=on --find --show \"$image\") && "
                                 "{ mount $loop \"$folder\"; status=$?; losetup -d $loop; "
                                 "test $status = 0; }",
                                 "loop,nouuid"},
                      VolumeKind{"btrfs",
                                 "truncate -s 128M \"$image\" && mkfs.btrfs \"$image\" && "
                                 "loop=$(losetup --direct-io=on --find --show \"$image\") && "
                                 "{ mount $loop \"$folder\"; status=$?; losetup -d $loop; "
                                 "test $status = 0; }"}),
    [](const auto &row) { return row.param.name; });

} // namespace
} // namespace zt::testing
