#include "TrackQueue.h"

#include "Mp3Builder.h"
#include "OrdinaryUser.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <system_error>
#include <vector>

namespace tunedex {
namespace {

using test::TestFolder;

class TrackQueueTest : public testing::TestWithParam<unsigned> {
  protected:
    TrackQueueTest() {
        for (std::size_t i = 0; i < 100; ++i) {
            names_.push_back(std::to_string(i) + ".mp3");
            files_.Write(names_.back(), test::Audio(417 * (i % 7 + 1)));
        }
        folder_ = std::make_shared<OpenFolder>(files_.Path(), "");
    }

    TestFolder files_;
    std::vector<std::string> names_;
    std::shared_ptr<OpenFolder> folder_;
};

TEST_P(TrackQueueTest, HandsReadingsOutInTheOrderInWhichFilesWentIn) {
    std::vector<std::string> received;
    std::vector<std::int32_t> sizes;
    TrackQueue queue(
        GetParam(), {},
        [&](QueuedTrack& track) {
            EXPECT_FALSE(track.failure);
            received.push_back(track.reading.track.FullPath);
            sizes.push_back(track.reading.track.FileSize);
        },
        [] { return false; });
    std::vector<std::string> sent;
    for (int round = 0; round < 30; ++round) {
        for (const std::string& name : names_) {
            EXPECT_TRUE(queue.Submit(folder_, name.c_str()));
            sent.push_back(files_ / name);
        }
    }
    EXPECT_TRUE(queue.Drain());
    EXPECT_TRUE(queue.Empty());
    EXPECT_EQ(received, sent);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(sizes[i]), 417 * (i % names_.size() % 7 + 1));
    }
}

TEST_P(TrackQueueTest, TellsOfAFileThatIsGone) {
    int failures = 0;
    TrackQueue queue(
        GetParam(), {}, [&](QueuedTrack& track) { failures += track.failure ? track.failure->Number() : 0; },
        [] { return false; });
    queue.Submit(folder_, "gone.mp3");
    queue.Submit(folder_, "0.mp3");
    EXPECT_TRUE(queue.Drain());
    EXPECT_EQ(failures, 53);
}

TEST_P(TrackQueueTest, GivesNothingMoreOnceTheReceiverHasThrown) {
    int received = 0;
    TrackQueue queue(
        GetParam(), {},
        [&](QueuedTrack& /*track*/) {
            if (++received == 20) {
                throw std::runtime_error("enough");
            }
        },
        [] { return false; });
    const auto submitAll = [&] {
        for (int round = 0; round < 30; ++round) {
            for (const std::string& name : names_) {
                queue.Submit(folder_, name.c_str());
            }
        }
        queue.Drain();
    };
    EXPECT_THROW(submitAll(), std::runtime_error);
    EXPECT_EQ(received, 20);
    queue.Submit(folder_, "1.mp3");
    EXPECT_TRUE(queue.Drain());
    EXPECT_EQ(received, 20);
}

// A single reader's caller asks by himself.
TEST_P(TrackQueueTest, GivesNothingMoreOnceTheStopTestSaysSo) {
    int received = 0;
    TrackQueue queue(
        GetParam(), {}, [&](QueuedTrack& /*track*/) { ++received; },
        [&] { return GetParam() != 1 && received == 20; });
    bool accepted = true;
    for (int round = 0; round < 30; ++round) {
        for (const std::string& name : names_) {
            accepted = queue.Submit(folder_, name.c_str());
        }
    }
    EXPECT_EQ(queue.Drain(), GetParam() == 1);
    EXPECT_EQ(accepted, GetParam() == 1);
    EXPECT_EQ(received, GetParam() == 1 ? 3000 : 20);
}

TEST_P(TrackQueueTest, ReadsByItselfWhereTheSystemHasNoThreadLeft) {
    test::AsOrdinaryUser(files_, [&] {
        test::InChild([&] {
            const rlimit none{};
            ASSERT_EQ(setrlimit(RLIMIT_NPROC, &none), 0);
            std::vector<std::string> received;
            TrackQueue queue(
                GetParam(), {},
                [&](QueuedTrack& track) {
                    EXPECT_FALSE(track.failure);
                    received.push_back(track.reading.track.FullPath);
                },
                [] { return false; });
            std::vector<std::string> sent;
            for (const std::string& name : names_) {
                EXPECT_TRUE(queue.Submit(folder_, name.c_str()));
                sent.push_back(files_ / name);
            }
            EXPECT_TRUE(queue.Drain());
            EXPECT_EQ(received, sent);
        });
    });
}

TEST_P(TrackQueueTest, MayBeThrownAwayWithFilesInFlight) {
    int received = 0;
    {
        TrackQueue queue(
            GetParam(), {}, [&](QueuedTrack& /*track*/) { ++received; }, [] { return false; });
        for (const std::string& name : names_) {
            queue.Submit(folder_, name.c_str());
        }
    }
    EXPECT_LE(received, 100);
}

INSTANTIATE_TEST_SUITE_P(Readers, TrackQueueTest, testing::Values(1U, 2U, 8U, 32U, 0U), [](const auto& info) {
    return info.param == 0 ? std::string("automatic") : std::to_string(info.param);
});

// A hole in a file costs no disk space, and searching one of this size takes minutes.
TEST_P(TrackQueueTest, EndsAFileInTheMiddleOnceTheStopTestSaysSo) {
    using Clock = std::chrono::steady_clock;
    files_.Write("hole.mp3", "");
    std::error_code error;
    std::filesystem::resize_file(files_ / "hole.mp3", 1ULL << 40U, error);
    if (error) {
        GTEST_SKIP() << "no files of that size here";
    }
    const Clock::time_point start = Clock::now();
    int received = 0;
    {
        int asked = 0;
        TrackQueue queue(
            GetParam(), {}, [&](QueuedTrack& /*track*/) { ++received; }, [&] { return ++asked > 2; });
        const bool accepted = queue.Submit(folder_, "hole.mp3");
        EXPECT_EQ(accepted, GetParam() != 1);
        EXPECT_FALSE(queue.Drain());
    }
    EXPECT_EQ(received, 0);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(20));
}

} // namespace
} // namespace tunedex
