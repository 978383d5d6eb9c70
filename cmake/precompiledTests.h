// The headers that nearly every test includes, parsed once for all test programs.
#pragma once
#include <QList>
#include <QMap>
#include <QString>
#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
