#pragma once

#include <span>

/// A header with which each page and all that stands beside it is handed out.
struct PageHeader {
    const char *name;
    const char *value;
};
std::span<const PageHeader> pageHeaders();
