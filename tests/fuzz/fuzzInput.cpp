#include "fuzz/fuzzInput.h"

#include "common/encodings.h"

#include <cstdio>
#include <cstdlib>

int FuzzInput::number()
{
    return m_taken < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_taken++]) : 0;
}

QString FuzzInput::text()
{
    const bool wide = number() % 2 == 1;
    return decode(rest(), wide).text;
}

void doesNotHold(const char *what, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, what);
    std::abort();
}
