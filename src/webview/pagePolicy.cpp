#include "webview/pagePolicy.h"

namespace
{
// A page shows what is served beside it and what it makes itself. Pictures, styles and scripts of other hosts are left
// to the guard of requests, who knows what the user has allowed. Nothing is fetched, sent or run beside the page.
constexpr PageHeader Headers[] = {
    {"Content-Security-Policy", "default-src 'none'; "
                                "script-src 'self' 'unsafe-inline' 'unsafe-eval' data: blob: http: https:; "
                                "style-src 'self' 'unsafe-inline' data: blob: http: https:; "
                                "img-src 'self' data: blob: http: https:; "
                                "font-src 'self' data: blob: http: https:; "
                                "media-src 'self' data: blob:; "
                                "frame-src 'self' data: blob:; "
                                "connect-src 'none'; worker-src 'none'; object-src 'none'; manifest-src 'none'"},
    {"X-Content-Type-Options", "nosniff"},
    {"X-DNS-Prefetch-Control", "off"},
    {"Referrer-Policy", "no-referrer"},
    {"Cache-Control", "no-store"}, // a file that has changed shows at the next preview
};
} // namespace

std::span<const PageHeader> pageHeaders()
{
    return Headers;
}
