#include "services/loopback.h"

#include <arpa/inet.h>
#include <cstring>
#include <netinet/in.h>

namespace
{
bool isLoopback4(const in_addr &address)
{
    return (ntohl(address.s_addr) >> 24) == 127;
}
} // namespace

bool isLoopback(const sockaddr &address)
{
    if (address.sa_family == AF_INET) {
        sockaddr_in four;
        std::memcpy(&four, &address, sizeof four);
        return isLoopback4(four.sin_addr);
    }
    if (address.sa_family != AF_INET6)
        return false;
    sockaddr_in6 six;
    std::memcpy(&six, &address, sizeof six);
    return IN6_IS_ADDR_LOOPBACK(&six.sin6_addr) != 0;
}

bool isLoopbackName(const QString &host)
{
    QByteArray name = host.toLower().toUtf8();
    if (name.startsWith('[') && name.endsWith(']'))
        name = name.sliced(1).chopped(1);
    in_addr four;
    if (inet_pton(AF_INET, name.constData(), &four) == 1)
        return isLoopback4(four);
    in6_addr six;
    if (inet_pton(AF_INET6, name.constData(), &six) == 1)
        return IN6_IS_ADDR_LOOPBACK(&six) != 0;
    return name == "localhost";
}
