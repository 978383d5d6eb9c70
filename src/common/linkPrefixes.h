#pragma once

#include <QStringView>
#include <array>

/// What an address in a text begins with, in lower case: the schemes that a page may link to.
inline constexpr std::array<QStringView, 6> AddressStarts = {u"http:", u"file://", u"mailto:",
                                                             u"ftp:",  u"https:",  u"news:"};

/// The same and, in front of them, what people leave the scheme out of. In the order in which they are looked for: the
/// first that is found is the address.
inline constexpr std::array<QStringView, 7> LinkPrefixes = {u"www.", u"http:",  u"file://", u"mailto:",
                                                            u"ftp:", u"https:", u"news:"};
