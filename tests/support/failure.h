#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/base/failure.h"

/// `statement` ends in a RunTimeFailure whose text satisfies `matcher`.
#define EXPECT_FAILURE(statement, matcher) \
    EXPECT_THAT([&] { static_cast<void>(statement); }, testing::ThrowsMessage<veraqua::RunTimeFailure>(matcher))
