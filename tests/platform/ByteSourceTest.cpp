#include "ByteSource.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"
#include "UniqueFd.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

using Buffer = std::vector<std::uint8_t>;

// Bytes that encode their own position.
Buffer Numbered(std::size_t count) {
    Buffer bytes(count);
    for (std::size_t i = 0; i < count; ++i) {
        bytes[i] = static_cast<std::uint8_t>((i * 31) ^ (i >> 8U));
    }
    return bytes;
}

Buffer ReadAt(ByteSource& source, std::uint64_t offset, std::size_t count) {
    Buffer buffer(count, 0xEE);
    buffer.resize(source.Read(offset, buffer));
    return buffer;
}

Buffer Expected(const Buffer& bytes, std::uint64_t offset, std::size_t count) {
    if (offset >= bytes.size()) {
        return {};
    }
    const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
    return {from, from + static_cast<std::ptrdiff_t>(std::min<std::uint64_t>(count, bytes.size() - offset))};
}

class AnySource : public testing::TestWithParam<bool> {
  protected:
    std::unique_ptr<ByteSource> Open(const Buffer& bytes) {
        if (!GetParam()) {
            return std::make_unique<MemoryByteSource>(bytes);
        }
        return std::make_unique<FileByteSource>(
            folder_.Write("bytes", {reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
    }

  private:
    test::TestFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(ByteSource, AnySource, testing::Bool(),
                         [](const auto& param) { return param.param ? "File" : "Memory"; });

TEST_P(AnySource, ReadsAnyRangeAndFewerBytesOnlyAtTheEnd) {
    for (const std::size_t size : {0U, 1U, 127U, 128U, 4095U, 4096U, 4097U, 10000U}) {
        const Buffer bytes = Numbered(size);
        const auto source = Open(bytes);
        EXPECT_EQ(source->Size(), size);
        for (const std::uint64_t offset :
             {0, 1, 126, 127, 128, 2048, 4094, 4095, 4096, 4097, 9872, 9999, 10000, 20000}) {
            for (const std::size_t count : {0U, 1U, 4U, 127U, 128U, 129U, 2048U, 2049U, 4096U, 12000U}) {
                EXPECT_EQ(ReadAt(*source, offset, count), Expected(bytes, offset, count))
                    << size << ' ' << offset << ' ' << count;
            }
        }
    }
}

TEST_P(AnySource, ReadsDoNotDependOnEarlierReads) {
    const Buffer bytes = Numbered(30000);
    const auto source = Open(bytes);
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): fixed seed for repeatable reads
    for (int i = 0; i < 5000; ++i) {
        const std::uint64_t offset = random() % 31000;
        const std::size_t count = random() % (i % 7 == 0 ? 9000 : 300);
        ASSERT_EQ(ReadAt(*source, offset, count), Expected(bytes, offset, count)) << offset << ' ' << count;
    }
}

TEST_P(AnySource, RaisesErrorSixtyTwoWhenTheSourceEndsFirst) {
    const Buffer ten = Numbered(10);
    const auto source = Open(ten);
    Buffer four(4);
    EXPECT_EQ(test::RaisedBy([&] { source->ReadExactly(6, four); }), 0);
    EXPECT_EQ(four, Expected(ten, 6, 4));
    EXPECT_EQ(test::RaisedBy([&] { source->ReadExactly(7, four); }), 62);
    EXPECT_EQ(test::RaisedBy([&] { source->ReadExactly(10, four); }), 62);
    EXPECT_EQ(test::RaisedBy([&] { source->ReadExactly(std::uint64_t{1} << 40U, four); }), 62);
}

TEST(FileByteSource, ReadsFarBeyondFourGigabytes) {
    const test::TestFolder folder;
    const std::string path = folder.Write("huge", "head");
    constexpr std::uintmax_t kSize = 5'000'000'000;
    std::filesystem::resize_file(path, kSize);
    FileByteSource source(path);
    EXPECT_EQ(source.Size(), kSize);
    EXPECT_EQ(ReadAt(source, kSize - 3, 128), Buffer(3, 0));
    EXPECT_EQ(ReadAt(source, 0, 4), (Buffer{'h', 'e', 'a', 'd'}));
}

TEST(FileByteSource, OpensANameRelativeToAFolderDescriptor) {
    const test::TestFolder folder;
    folder.Write("a.mp3", "x");
    const UniqueFd opened(open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_TRUE(opened);
    {
        FileByteSource source(opened.Get(), "a.mp3");
        EXPECT_EQ(ReadAt(source, 0, 9), Buffer{'x'});
        EXPECT_EQ(test::RaisedBy([&] { FileByteSource(opened.Get(), "b.mp3"); }), 53);
    }
    EXPECT_EQ(fcntl(opened.Get(), F_GETFD), FD_CLOEXEC) << "the caller keeps the folder descriptor";
}

TEST(FileByteSource, RaisesTheErrorOfAnythingButAReadableFileWithoutBlocking) {
    const test::TestFolder folder;
    folder.Write("file", "x");
    ASSERT_EQ(symlink("self", (folder / "self").c_str()), 0);
    ASSERT_EQ(symlink("nowhere", (folder / "dangling").c_str()), 0);
    ASSERT_EQ(mkfifo((folder / "fifo.mp3").c_str(), 0600), 0);
    const std::vector<std::pair<std::string, int>> rows = {
        {folder / "none", 53},
        {folder / "dangling", 53},
        {folder.Make("folder"), 53},
        {folder / "fifo.mp3", 53},
        {"", 53},
        {folder / "file/below", 76},
        {folder / "self", 52},
        {folder / std::string(300, 'n'), 52},
        {std::string("a\0b", 3), 53},
    };
    for (const auto& [path, number] : rows) {
        EXPECT_EQ(test::RaisedBy([&path = path] { FileByteSource source(path); }), number) << path;
    }
    const UniqueFd opened(open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (const auto& [path, number] : rows) {
        if (path.starts_with(folder.Path()) && path.find('\0') == std::string::npos) {
            EXPECT_EQ(test::RaisedBy([&, name = path.c_str() + folder.Path().size()] {
                          FileByteSource source(opened.Get(), name);
                      }),
                      number)
                << path;
        }
    }
    test::AsOrdinaryUser(folder, [&] {
        ASSERT_EQ(chmod((folder / "file").c_str(), 0), 0);
        EXPECT_EQ(test::RaisedBy([&] { FileByteSource source(folder / "file"); }), 75);
    });
}

TEST(FileByteSource, RaisesErrorSixtySevenWhenDescriptorsRunOut) {
    const test::TestFolder folder;
    const std::string path = folder.Write("file", "x");
    test::InChild([&] {
        // A sanitizer opens a descriptor when it first inspects a class: trigger that for these two.
        EXPECT_EQ(FileByteSource(path).Size(), 1U);
        EXPECT_EQ(test::RaisedBy([&] { FileByteSource(path + " is gone"); }), 53);
        const rlimit none{3, 3};
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
        // Open descriptors of the test program are below the limit or do not count against it.
        int number = 0;
        std::vector<std::unique_ptr<FileByteSource>> open;
        while (number == 0 && open.size() < 10) {
            number = test::RaisedBy([&] { open.push_back(std::make_unique<FileByteSource>(path)); });
        }
        EXPECT_EQ(number, 67);
    });
}

TEST(FileByteSource, DetectsAFileThatShrankAfterItWasOpened) {
    const test::TestFolder folder;
    const std::string path = folder.Write("file", std::string(10000, 'x'));
    FileByteSource source(path);
    std::filesystem::resize_file(path, 10);
    Buffer buffer(100);
    EXPECT_EQ(test::RaisedBy([&] { source.ReadExactly(5000, buffer); }), 62);
    EXPECT_EQ(ReadAt(source, 0, 100).size(), 10U);
}

TEST(FileByteSource, EndsWhenTheStopTestReturnsTrueButDoesNotCallItForTheFirstReads) {
    const test::TestFolder folder;
    const std::string path = folder.Write("file", std::string(1'000'000, 'x'));
    int asked = 0;
    const StopTest stop = [&] { return ++asked == 3; };
    FileByteSource source(AT_FDCWD, path.c_str(), ReadAhead::AsUsual, &stop);
    Buffer buffer(65536);
    std::size_t got = 0;
    int reads = 0;
    for (; source.Read(got, buffer) == buffer.size(); ++reads) {
        got += buffer.size();
        EXPECT_FALSE(source.Stopped());
    }
    EXPECT_EQ(reads, 6) << "four reads without a call, two with the result false";
    EXPECT_TRUE(source.Stopped());
    EXPECT_EQ(source.Read(0, buffer), 0U);
    EXPECT_EQ(asked, 3);
}

} // namespace
} // namespace tunedex
