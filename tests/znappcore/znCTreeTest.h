#ifndef TESTS_ZNAPPCORE_ZNCTREETEST_H
#define TESTS_ZNAPPCORE_ZNCTREETEST_H

// Brings up what a tree of entities needs: the log, the static vectors, the two factories. A test fails on any logged
// fault that it did not take.

#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestLog.h"
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

    std::vector<std::string> errorsTake() { return znNTestLog::errorsTake(mCore.mPlatform); }

    znCTestCore mCore;
};

#endif
