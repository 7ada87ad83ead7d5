#pragma once
// Fails unless the call raises the runtime error with this number.
#include <gtest/gtest.h>

#include "base/runtime_error.h"

inline void ExpectRuntimeError(base::RuntimeErrorNumber number, auto&& call) {
    try {
        call();
        ADD_FAILURE() << "no runtime error";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.Number(), number);
    }
}
