#include "directorytexts.h"

#include <cstdio>
#include <cstring>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

char *get_mac_addr2(char *interfaceName)
{
    static char text[14];
    if (text[0] != '\0')
        return text;
    const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
    if (descriptor < 0)
        return text;
    ifreq request{};
    std::strncpy(request.ifr_name, interfaceName, sizeof request.ifr_name - 1);
    if (::ioctl(descriptor, SIOCGIFHWADDR, &request) == 0) {
        unsigned char bytes[6];
        std::memcpy(bytes, request.ifr_hwaddr.sa_data, sizeof bytes);
        std::snprintf(text, sizeof text, "%02X%02X%02X%02X%02X%02X", bytes[0], bytes[1], bytes[2], bytes[3],
                      bytes[4], bytes[5]);
    }
    ::close(descriptor);
    return text;
}
