// A phone on which settings bundles of invented products are installed: a music player ("Jukebox", with a
// program), a weather station ("Weathercock", property lists alone), train alerts ("LateTrain", rows for
// other pages) and a bundle whose program is damaged ("Wreck").
#pragma once

#include "host/Control.h"
#include "support/Person.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#import <Foundation/Foundation.h>
#import <Preferences/Preferences.h>

namespace preferences {

/// Puts a fixture (NAME.bundle, or files of Entries) at a path of the phone.
void install(const std::string &fixture, const std::string &path);

/// Opens a fixture bundle by its path, as it was built.
PSListController *open(const std::string &name, std::string *reason = nullptr);

/// The value of a key in a domain's file now; nil without one.
id stored(const std::string &domain, const std::string &key);

/// A stored value as text: "true", "false", numbers as they print; "" for none.
std::string storedText(const std::string &domain, const std::string &key);

/// The texts of the front table with this role ("header", "footer"), in order.
std::vector<std::string> texts(const std::string &role);

/// The accessory of a row: "none", "disclosure", "checkmark".
std::string accessory(const std::string &row);

/// Labels of the front table's rows that are checked.
std::vector<std::string> checked();

/// Notifications posted since the start.
std::vector<std::string> notifications();

/// Whether the platform told the developer something with this text in it.
bool complained(const std::string &about);

/// What the music player's page noted last.
std::string trace();

NSString *text(const std::string &utf8);

inline const std::string jukebox = "org.example.jukebox";
inline const std::string account = "org.example.jukebox.account";
inline const std::string weathercock = "org.example.weathercock";

class Test : public testing::Test {
protected:
    explicit Test(host::DeviceOptions options = {}) : phone(std::move(options)) {}

    support::TestDevice phone;
    support::Person person;
};

/// On a phone in German.
class German : public Test {
protected:
    German() : Test({.folder = "", .language = "de", .region = "DE"}) {}
};

} // namespace preferences
