#include "Collection.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tunedex {
namespace {

std::vector<CollectionFile> Make(const CollectionOptions& options) {
    std::vector<CollectionFile> files;
    for (Collection collection(options); !collection.AtEnd();) {
        files.push_back(collection.Next());
    }
    return files;
}

// The file as a reader sees it: zeros between the parts.
std::string BytesAt(const CollectionFile& file, std::uint64_t offset, std::size_t length) {
    std::string bytes(length, '\0');
    for (const FilePart& part : file.parts) {
        for (std::size_t i = 0; i < part.bytes.size(); ++i) {
            if (part.offset + i >= offset && part.offset + i < offset + length) {
                bytes[part.offset + i - offset] = part.bytes[i];
            }
        }
    }
    return bytes;
}

std::uint64_t AudioStart(const CollectionFile& file) {
    const std::string head = BytesAt(file, 0, 10);
    if (head.substr(0, 3) != "ID3") {
        return 0;
    }
    std::uint64_t size = 0;
    for (std::size_t i = 6; i < 10; ++i) {
        size = size * 128 + static_cast<unsigned char>(head[i]);
    }
    return 10 + size;
}

bool HasId3v1(const CollectionFile& file) {
    return BytesAt(file, file.size - 128, 3) == "TAG";
}

TEST(Collections, DependOnTheSeedOnly) {
    const std::vector<CollectionFile> one = Make({200, 1});
    const std::vector<CollectionFile> again = Make({200, 1});
    const std::vector<CollectionFile> other = Make({200, 2});
    ASSERT_EQ(one.size(), 200U);
    bool different = false;
    for (std::size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(one[i].folder + "/" + one[i].name, again[i].folder + "/" + again[i].name);
        EXPECT_EQ(one[i].size, again[i].size);
        ASSERT_EQ(one[i].parts.size(), again[i].parts.size());
        for (std::size_t k = 0; k < one[i].parts.size(); ++k) {
            EXPECT_EQ(one[i].parts[k].offset, again[i].parts[k].offset);
            EXPECT_EQ(one[i].parts[k].bytes, again[i].parts[k].bytes);
        }
        different = different || one[i].size != other[i].size;
    }
    EXPECT_TRUE(different);
}

TEST(Collections, StartWithTheFilesOfASmallerCollection) {
    const std::vector<CollectionFile> small = Make({50, 7});
    const std::vector<CollectionFile> large = Make({100, 7});
    for (std::size_t i = 0; i < small.size(); ++i) {
        EXPECT_EQ(small[i].name, large[i].name);
        EXPECT_EQ(small[i].size, large[i].size);
    }
}

TEST(Collections, ContainFilesOfRealisticShape) {
    std::set<std::string> paths;
    for (const CollectionFile& file : Make({2000, 3})) {
        EXPECT_TRUE(paths.insert(file.folder + "/" + file.name).second) << file.folder << "/" << file.name;
        EXPECT_GE(file.size, 3'000'000U);
        EXPECT_LE(file.size, 8'000'000U);
        std::uint64_t end = 0;
        for (const FilePart& part : file.parts) {
            EXPECT_GE(part.offset, end);
            end = part.offset + part.bytes.size();
        }
        EXPECT_LE(end, file.size);
        EXPECT_EQ(BytesAt(file, AudioStart(file), 4), "\xFF\xFB\x90\x64");
    }
}

TEST(Collections, KeepTheRequestedShares) {
    struct Row {
        CollectionOptions options;
        double untagged, vbr, longTag;
    };
    const Row rows[] = {
        {{4000, 1, 3, 30, 35}, 0.03, 0.30, 0.97 * 0.9 * 0.35},
        {{4000, 1, 50, 0, 0}, 0.50, 0.0, 0.0},
        {{4000, 1, 0, 100, 100}, 0.0, 1.0, 0.9},
        {{4000, 1, 100, 50, 100}, 1.0, 0.5, 0.0},
    };
    for (const Row& row : rows) {
        double untagged = 0;
        double vbr = 0;
        double longTag = 0;
        const std::vector<CollectionFile> files = Make(row.options);
        for (const CollectionFile& file : files) {
            const std::uint64_t audio = AudioStart(file);
            untagged += audio == 0 && !HasId3v1(file) ? 1 : 0;
            vbr += BytesAt(file, audio + 36, 4) == "Xing" ? 1 : 0;
            longTag += audio >= 20000 ? 1 : 0;
        }
        const auto count = static_cast<double>(files.size());
        EXPECT_NEAR(untagged / count, row.untagged, 0.02);
        EXPECT_NEAR(vbr / count, row.vbr, 0.03);
        EXPECT_NEAR(longTag / count, row.longTag, 0.03);
    }
}

} // namespace
} // namespace tunedex
