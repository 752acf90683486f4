#ifndef TESTS_ZNAPPCORE_ZNCTREETEST_H
#define TESTS_ZNAPPCORE_ZNCTREETEST_H

// Brings up what a tree of entities needs: the log, the static vectors, the two factories. A test fails on any logged
// fault that it did not take.

#include "tests/support/znCTestCore.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntityFactory.h"
#include "znappcore/znINode.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

class znCTreeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        znINode::staticVectorsCreate();
        znCComponentFactory::create();
        znCEntityFactory::create();
    }

    void TearDown() override
    {
        znCEntityFactory::destroy();
        znCComponentFactory::destroy();
        znINode::staticVectorsDestroy();
        EXPECT_EQ(errorsTake(), std::vector<std::string>()) << "faults that the test doesn't expect";
    }

    // The messages of the assertions that failed since the last call, without place and line end.
    std::vector<std::string> errorsTake()
    {
        std::vector<std::string> errors;
        const std::string log = mCore.mPlatform.logTake();
        for (std::size_t begin = 0, end = 0; begin < log.size(); begin = end + 1)
        {
            end = std::min(log.find('\n', begin), log.size());
            const std::string line = log.substr(begin, end - begin);
            const std::size_t message = line.find(") ");
            if (line.find("ERROR(") <= 1 && line.find("ASSERT failure (") == std::string::npos)
                errors.push_back(line.substr(message + 2));
        }
        return errors;
    }

    znCTestCore mCore;
};

#endif
