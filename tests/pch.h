// Precompiled for the test programs.
#pragma once

#include "cmake/pch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
