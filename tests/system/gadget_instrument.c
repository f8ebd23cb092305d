// Plays the refractometer on the gadget side of a USB HID function: logs every output report the
// host sends ("out 80 80") and answers each update request (31 00) with the next reading of a
// fixed list, logged as the host should print it ("answer 1.544").
//
// Usage: gadget_instrument [/dev/hidgN]   (runs until killed)

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

enum { reportLength = 8 };

// Thousandths of R.I., the instrument's unit; none repeats so a lost or doubled answer shows.
static const unsigned readings[] = {1544, 1553, 1762, 1770, 1309, 1486, 1658, 2417, 1718, 1640,
                                    1610, 1630, 1540, 1550, 1577, 1583, 1760, 1768, 1912, 1434,
                                    1501, 1512, 1523, 1534, 1545, 1556, 1567, 1578, 1589, 1601};
enum { readingCount = sizeof readings / sizeof readings[0] };

static void logReport(const unsigned char* report, ssize_t length) {
    printf("out");
    for (ssize_t k = 0; k < length; ++k) {
        printf(" %02x", report[k]);
    }
    printf("\n");
}

static void answer(int device, unsigned reading) {
    unsigned char report[reportLength] = {(unsigned char)(reading & 0xFF),
                                          (unsigned char)(reading >> 8)};
    printf("answer %u.%03u\n", reading / 1000, reading % 1000);
    // Unplugged, the function refuses the write; the host is gone and expects nothing.
    if (write(device, report, sizeof report) != (ssize_t)sizeof report) {
        printf("write failed: %s\n", strerror(errno));
    }
}

int main(int argc, char** argv) {
    const char* path = argc > 1 ? argv[1] : "/dev/hidg0";
    const int device = open(path, O_RDWR);
    if (device < 0) {
        fprintf(stderr, "gadget_instrument: %s: %s\n", path, strerror(errno));
        return 1;
    }
    setvbuf(stdout, NULL, _IOLBF, 0);
    unsigned next = 0;
    for (;;) {
        unsigned char report[64];
        const ssize_t length = read(device, report, sizeof report);
        if (length < 0) {
            if (errno == EINTR) {
                continue;
            }
            fprintf(stderr, "gadget_instrument: read %s: %s\n", path, strerror(errno));
            return 1;
        }
        logReport(report, length);
        if (length >= 2 && report[0] == 0x31 && report[1] == 0x00) {
            answer(device, readings[next]);
            next = (next + 1) % readingCount;
        }
    }
}
