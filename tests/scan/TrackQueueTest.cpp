#include "TrackQueue.h"

#include "Mp3Builder.h"
#include "OrdinaryUser.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <future>
#include <memory>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <system_error>
#include <thread>
#include <vector>

namespace tunedex {
namespace {

using test::TestFolder;

// A folder of a hundred tracks.
class TrackQueueFiles {
  protected:
    TrackQueueFiles() {
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

class TrackQueueTest : public TrackQueueFiles, public testing::TestWithParam<unsigned> {};
class TrackQueueMachineTest : public TrackQueueFiles, public testing::Test {};

TEST_P(TrackQueueTest, DeliversReadingsInTheOrderOfSubmission) {
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

TEST_P(TrackQueueTest, ReportsAMissingFile) {
    int failures = 0;
    TrackQueue queue(
        GetParam(), {}, [&](QueuedTrack& track) { failures += track.failure ? track.failure->Number() : 0; },
        [] { return false; });
    queue.Submit(folder_, "gone.mp3");
    queue.Submit(folder_, "0.mp3");
    EXPECT_TRUE(queue.Drain());
    EXPECT_EQ(failures, 53);
}

TEST_P(TrackQueueTest, DeliversNothingAfterTheReceiverThrows) {
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

// With one reader the caller polls the stop test itself.
TEST_P(TrackQueueTest, DeliversNothingAfterTheStopTestReturnsTrue) {
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

TEST_P(TrackQueueTest, ReadsOnTheCallersThreadWhenNoThreadCanBeStarted) {
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

TEST_P(TrackQueueTest, CanBeDestroyedWithFilesInFlight) {
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

// The first batch runs out of descriptors and waits for the second, whose reader is held until the queue has
// stopped.
TEST_F(TrackQueueMachineTest, StopsWhileWaitingForADescriptor) {
    constexpr int kBatchFiles = 16;
    std::promise<void> begunPromise;
    std::promise<void> stoppedPromise;
    const std::shared_future<void> begun = begunPromise.get_future().share();
    const std::shared_future<void> stopped = stoppedPromise.get_future().share();
    std::atomic<int> lacked = 0;
    int received = 0;
    TrackQueue queue(
        2, {}, [&](QueuedTrack& /*track*/) { ++received; }, [&] { return lacked >= kBatchFiles; },
        {2, [&](QueuedTrack& track, const ReadOptions& /*options*/) {
             if (track.reading.track.FullPath.ends_with("/99.mp3")) {
                 begunPromise.set_value();
                 stopped.wait();
             } else {
                 begun.wait();
                 track.failure = RunTimeError(ErrorNumber::TooManyFiles);
                 ++lacked;
             }
         }});
    for (int i = 0; i < kBatchFiles; ++i) {
        EXPECT_TRUE(queue.Submit(folder_, "0.mp3"));
    }
    EXPECT_TRUE(queue.Submit(folder_, "99.mp3"));
    EXPECT_FALSE(queue.Drain());
    EXPECT_EQ(received, 0) << "a track is received after the stop";
    stoppedPromise.set_value();
}

TEST_F(TrackQueueMachineTest, StartsNoMoreReadersThanTheLimitOnManyProcessors) {
    std::mutex mutex;
    std::condition_variable all;
    std::set<std::thread::id> readers;
    const auto allThere = [&] { return readers.size() >= ReaderPolicy::kMostReaders; };
    TrackQueue queue(
        0, {}, [](QueuedTrack& /*track*/) {}, [] { return false; },
        {64, [&](QueuedTrack& /*track*/, const ReadOptions& /*options*/) {
             std::unique_lock lock(mutex);
             readers.insert(std::this_thread::get_id());
             all.notify_all();
             // Each reader holds its first file until all the others have one.
             EXPECT_TRUE(all.wait_for(lock, std::chrono::seconds(60), allThere));
         }});
    for (int round = 0; round < 20; ++round) {
        for (const std::string& name : names_) {
            EXPECT_TRUE(queue.Submit(folder_, name.c_str()));
        }
    }
    EXPECT_TRUE(queue.Drain());
    EXPECT_EQ(readers.size(), ReaderPolicy::kMostReaders);
}

INSTANTIATE_TEST_SUITE_P(Readers, TrackQueueTest, testing::Values(1U, 2U, 8U, 32U, 0U), [](const auto& info) {
    return info.param == 0 ? std::string("automatic") : std::to_string(info.param);
});

// A hole takes no disk space, and searching one of this size takes minutes.
TEST_P(TrackQueueTest, StopsInTheMiddleOfAFile) {
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
