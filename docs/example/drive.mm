// Drives the settings page from outside: opens the bundle on a device folder, switches the first switch, lets
// three seconds pass, and prints what the dialer would have been told.
//
// usage: drive DEVICE-FOLDER PATH-OF-Zelvora.bundle
#import <Foundation/Foundation.h>

#include "host/Clock.h"
#include "host/Control.h"

#include <iostream>

int main(int argc, char **argv) {
    if (argc != 3) {
        std::cerr << "usage: drive DEVICE-FOLDER BUNDLE\n";
        return 2;
    }
    @autoreleasepool {
        host::start({.folder = argv[1], .systemVersion = "8.1", .language = "en", .virtualTime = true});
        std::string reason;
        if (!host::openBundle([NSString stringWithUTF8String:argv[2]], &reason)) {
            std::cerr << "the bundle does not open: " << reason << '\n';
            return 1;
        }

        const host::Element screen = host::screen();
        for (const host::Element *cell : screen.all("Cell"))
            std::cout << cell->label << ": " << cell->value << '\n';

        const auto switches = screen.all("Switch");
        if (switches.empty() || host::perform({.number = switches.front()->number}) != host::Outcome::done) {
            std::cerr << "there is no switch to tap\n";
            return 1;
        }
        host::advance(3);
        for (const std::string &name : host::eventTexts(host::EventKind::notification))
            std::cout << "notification: " << name << '\n';
    }
    return 0;
}
