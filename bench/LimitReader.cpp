// limit_reader: the lower bound for any lister of MP3 files. It walks a folder, opens every *.mp3, reads 4
// KiB at its start, 2 KiB after a tag longer than that, and its last 128 bytes, and discards them.

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <dirent.h>
#include <fcntl.h>
#include <iomanip>
#include <iostream>
#include <memory>
#include <mutex>
#include <string>
#include <strings.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t kHeadSize = 4096;
constexpr std::size_t kFrameSize = 2048;
constexpr std::size_t kTailSize = 128;
constexpr std::size_t kBatchSize = 16;
// Each batch may keep a folder open; the default limit is 1,024 descriptors per process.
constexpr std::size_t kMostBatches = 256;

struct Totals {
    std::atomic<std::uint64_t> files = 0;
    std::atomic<std::uint64_t> bytes = 0;
    std::atomic<std::uint64_t> failures = 0;
};

class Folder {
  public:
    explicit Folder(DIR* stream) : stream_(stream) {}
    ~Folder() { closedir(stream_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    DIR* Stream() const { return stream_; }
    int Descriptor() const { return dirfd(stream_); }

  private:
    DIR* stream_;
};

struct Batch {
    std::shared_ptr<Folder> folder; // open until its last file is read
    std::vector<std::string> names;
};

// The position after the ID3v2 tag at the start of `head`; 0 without a tag.
off_t TagEnd(const std::array<unsigned char, kHeadSize>& head, ssize_t length) {
    if (length < 10 || std::memcmp(head.data(), "ID3", 3) != 0) {
        return 0;
    }
    return 10 + ((head[6] & 0x7F) << 21 | (head[7] & 0x7F) << 14 | (head[8] & 0x7F) << 7 | (head[9] & 0x7F));
}

void ReadFile(int folder, const char* name, Totals& totals) {
    const int file = openat(folder, name, O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        ++totals.failures;
        return;
    }
    std::array<unsigned char, kHeadSize> head; // NOLINT: filled by the read
    ssize_t bytes = pread(file, head.data(), head.size(), 0);
    const off_t tagEnd = TagEnd(head, bytes);
    std::array<unsigned char, kFrameSize> rest; // NOLINT: filled by the reads
    if (tagEnd + static_cast<off_t>(kFrameSize) > static_cast<off_t>(kHeadSize)) {
        bytes += pread(file, rest.data(), kFrameSize, tagEnd);
    }
    const off_t size = lseek(file, 0, SEEK_END);
    if (size >= static_cast<off_t>(kTailSize)) {
        bytes += pread(file, rest.data(), kTailSize, size - static_cast<off_t>(kTailSize));
    }
    close(file);
    ++totals.files;
    totals.bytes += static_cast<std::uint64_t>(bytes);
}

void ReadBatch(const Batch& batch, Totals& totals) {
    for (const std::string& name : batch.names) {
        ReadFile(batch.folder->Descriptor(), name.c_str(), totals);
    }
}

// With one thread the walker reads the files itself; with more it passes batches to readers.
class Readers {
  public:
    Readers(unsigned threads, Totals& totals) : totals_(totals) {
        for (unsigned i = 0; threads > 1 && i < threads; ++i) {
            threads_.emplace_back([this] { Run(); });
        }
    }

    void Take(Batch batch) {
        if (threads_.empty()) {
            ReadBatch(batch, totals_);
            return;
        }
        std::unique_lock lock(mutex_);
        room_.wait(lock, [this] { return batches_.size() < kMostBatches; });
        batches_.push_back(std::move(batch));
        work_.notify_one();
    }

    void Finish() {
        {
            const std::lock_guard lock(mutex_);
            finished_ = true;
        }
        work_.notify_all();
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }

  private:
    void Run() {
        while (true) {
            Batch batch;
            {
                std::unique_lock lock(mutex_);
                work_.wait(lock, [this] { return finished_ || !batches_.empty(); });
                if (batches_.empty()) {
                    return;
                }
                batch = std::move(batches_.front());
                batches_.pop_front();
            }
            room_.notify_one();
            ReadBatch(batch, totals_);
        }
    }

    Totals& totals_;
    std::mutex mutex_;
    std::condition_variable work_;
    std::condition_variable room_;
    std::deque<Batch> batches_;
    bool finished_ = false;
    std::vector<std::thread> threads_; // last member: the threads use the others
};

bool IsMp3(const char* name) {
    const std::size_t length = std::strlen(name);
    return length >= 4 && strcasecmp(name + length - 4, ".mp3") == 0;
}

// Lists one folder: passes files to the readers and adds sub-folders to `pending`.
void WalkFolder(const std::string& path, std::vector<std::string>& pending, Readers& readers,
                Totals& totals) {
    DIR* const stream = opendir(path.c_str());
    if (stream == nullptr) {
        ++totals.failures;
        return;
    }
    const auto folder = std::make_shared<Folder>(stream);
    Batch batch{folder, {}};
    while (const dirent* entry = readdir(stream)) {
        const char* const name = static_cast<const char*>(entry->d_name);
        if (name[0] == '.') {
            continue;
        }
        if (entry->d_type == DT_DIR) {
            pending.push_back(path + "/" + name);
        } else if (entry->d_type == DT_REG && IsMp3(name)) {
            batch.names.emplace_back(name);
            if (batch.names.size() == kBatchSize) {
                readers.Take(std::move(batch));
                batch = {folder, {}};
            }
        }
    }
    if (!batch.names.empty()) {
        readers.Take(std::move(batch));
    }
}

void Walk(const std::string& start, unsigned threads, Totals& totals) {
    Readers readers(threads, totals);
    std::vector<std::string> pending = {start};
    while (!pending.empty()) {
        const std::string path = std::move(pending.back());
        pending.pop_back();
        WalkFolder(path, pending, readers, totals);
    }
    readers.Finish();
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool withThreads = arguments.size() == 3 && arguments[1] == "--threads";
    const int threads =
        withThreads ? std::atoi(arguments[2].c_str()) : 1; // NOLINT(cert-err34-c): checked below
    if ((arguments.size() != 1 && !withThreads) || threads < 1 || threads > 1024) {
        std::cerr << "usage: limit_reader FOLDER [--threads N]\n";
        return 2;
    }
    Totals totals;
    const auto start = std::chrono::steady_clock::now();
    Walk(arguments[0], static_cast<unsigned>(threads), totals);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::cout << totals.files << " files, " << totals.bytes << " bytes read, " << std::fixed
              << std::setprecision(4) << elapsed.count() << " s\n";
    if (totals.failures > 0) {
        std::cerr << "limit_reader: " << totals.failures << " files or folders could not be opened\n";
        return 1;
    }
    return 0;
}
