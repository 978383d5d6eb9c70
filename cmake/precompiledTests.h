// The headers that most tests include, parsed once for all test programs.
#pragma once
#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <vector>
