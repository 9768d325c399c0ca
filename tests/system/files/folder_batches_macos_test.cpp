#include "system/files/folder_batches_macos.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

namespace kelmar {
namespace {

/// Answers of getattrlistbulk(2), one a call: a count, or an error's number below zero.
class FolderBatch : public testing::Test {
protected:
    FolderReading read(std::vector<int> answers) {
        std::size_t call = 0;
        return readInBatches({[&] {
                                  const int answer = answers.at(call++);
                                  errno = answer < 0 ? -answer : 0;
                                  return answer < 0 ? -1 : answer;
                              },
                              [this](int count) {
                                  visited += count;
                                  return visitorAnswers;
                              },
                              [this] {
                                  ++otherWays;
                                  return FolderReading::complete;
                              }});
    }

    FolderReading visitorAnswers = FolderReading::complete;
    int visited = 0;
    int otherWays = 0;
};

TEST_F(FolderBatch, AreReadToTheEnd) {
    EXPECT_EQ(read({3, -EINTR, 2, 0}), FolderReading::complete);
    EXPECT_EQ(visited, 5);
    EXPECT_EQ(otherWays, 0);
}

TEST_F(FolderBatch, AreReadAnotherWayWhereTheFileSystemKnowsNone) {
    EXPECT_EQ(read({-ENOTSUP}), FolderReading::complete);
    EXPECT_EQ(otherWays, 1);
}

TEST_F(FolderBatch, AreReadAnotherWayAlsoWhenTheFirstCallWasInterrupted) {
    EXPECT_EQ(read({-EINTR, -EINTR, -ENOTSUP}), FolderReading::complete);
    EXPECT_EQ(otherWays, 1);
}

TEST_F(FolderBatch, FailWhenALaterOneCannotBeRead) {
    EXPECT_EQ(read({3, -EIO}), FolderReading::failed);
    EXPECT_EQ(otherWays, 0);
}

TEST_F(FolderBatch, EndWithTheVisitor) {
    visitorAnswers = FolderReading::stopped;
    EXPECT_EQ(read({3, 2, 0}), FolderReading::stopped);
    EXPECT_EQ(visited, 3);
}

} // namespace
} // namespace kelmar
