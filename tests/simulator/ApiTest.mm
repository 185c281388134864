// The interface over the live platform: requests come from another thread, as they do from a browser.
#include "host/Clock.h"
#include "host/Control.h"
#include "host/Work.h"
#include "simulator/api/Bundles.h"
#include "simulator/api/Routes.h"
#include "simulator/demo/DemoDevice.h"
#include "simulator/HttpClient.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <future>

namespace sim {

using host::EventKind;

class TheInterface : public testing::Test {
protected:
    TheInterface() : phone(virtualPhone()), server({.token = token}) {
        makeDemoDevice(host::device().folder, {.contacts = 5, .calls = 5, .now = host::now()});
        Options options;
        options.device = host::device().folder;
        options.virtualTime = true;
        session = std::make_unique<Session>(options, server);
        addRoutes(server, *session);
        EXPECT_TRUE(showBundle(options, "Zelvora"));
        EXPECT_TRUE(server.start());
    }

    static host::DeviceOptions virtualPhone() {
        host::DeviceOptions options;
        options.virtualTime = true;
        return options;
    }

    /// Runs `work` on another thread and the main run loop here until it is done.
    template<typename Work>
    static std::invoke_result_t<Work> during(const Work &work) {
        bool over = false;
        auto result = std::async(std::launch::async, [&] {
            struct Ending {
                bool &over;
                ~Ending() {
                    host::later([&flag = over] { flag = true; });
                }
            } ending{over};
            return work();
        });
        while (!over) {
            @autoreleasepool {
                [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]];
            }
        }
        return result.get();
    }

    ~TheInterface() override {
        during([this] { server.stop(); });
    }

    [[nodiscard]] Json get(const std::string &path) {
        return answer(during([&] { return client().Get(path, known()); }));
    }

    [[nodiscard]] Json post(const std::string &path, const Json &body) {
        return answer(during([&] { return client().Post(path, known(), body.dump(), "application/json"); }));
    }

    [[nodiscard]] Json tap(const std::string &type, const std::string &label) {
        return post("/api/gesture", {{"kind", "tap"}, {"element", {{"type", type}, {"label", label}}}});
    }

    [[nodiscard]] httplib::Client client() const { return httplib::Client("127.0.0.1", server.port()); }
    [[nodiscard]] static httplib::Headers known() { return {{"X-Zelvora-Token", token}}; }

    [[nodiscard]] Json answer(const httplib::Result &result) {
        status = result ? result->status : 0;
        return result ? Json::parse(result->body, nullptr, false) : Json();
    }

    static constexpr const char *token = "0123456789abcdef0123456789abcdef";
    support::TestDevice phone;
    HttpServer server;
    std::unique_ptr<Session> session;
    int status = 0;
};

TEST_F(TheInterface, ShowsThePageInFront) {
    const Json answer = get("/api/screen");
    EXPECT_EQ(status, 200);
    EXPECT_EQ(answer["screen"]["type"], "Window");
    EXPECT_NE(oneLine(answer).find("Enable Zelvora"), std::string::npos);
}

TEST_F(TheInterface, CarriesOutATapAndShowsWhatCameOfIt) {
    const Json before = get("/api/screen");
    const Json after = tap("Switch", "Enable Zelvora");
    EXPECT_EQ(status, 200);
    EXPECT_EQ(after["outcome"], "done");
    EXPECT_GT(after["sequence"], before["sequence"]);
    EXPECT_TRUE(phone.exists("/var/mobile/Library/Preferences/zelvora.plist"));
}

TEST_F(TheInterface, RefusesATapOnWhatIsNotThere) {
    EXPECT_EQ(tap("Cell", "Nonsense")["outcome"], "notThere");
    EXPECT_EQ(status, 404);
    EXPECT_EQ(post("/api/gesture", {{"kind", "tap"}, {"number", 999'999}})["outcome"], "notThere");
    EXPECT_EQ(status, 404);
}

TEST_F(TheInterface, RefusesAGestureThatTheElementDoesNotTake) {
    const Json answer = post(
        "/api/gesture", {{"kind", "swipe"}, {"element", {{"type", "Cell"}, {"label", "Enable Zelvora"}}}});
    EXPECT_EQ(answer["outcome"], "disabled");
    EXPECT_EQ(status, 409);
}

TEST_F(TheInterface, RefusesAGestureThatDoesNotExist) {
    EXPECT_EQ(post("/api/gesture", {{"kind", "shake"}})["error"], "there is no gesture \"shake\"");
    EXPECT_EQ(status, 400);
}

TEST_F(TheInterface, TellsThePendingNotificationAndThenTheEvent) {
    (void)tap("Switch", "Enable Zelvora");
    EXPECT_EQ(get("/api/events")["pending"]["calls"][0]["delay"], 3);
    (void)post("/api/device", {{"advance", 3}});
    const Json later = get("/api/events");
    EXPECT_TRUE(later["pending"]["calls"].empty());
    EXPECT_EQ(host::eventTexts(EventKind::notification), std::vector<std::string>{"ZVSettingsChanged"});
}

TEST_F(TheInterface, TellsOnlyWhatIsNew) {
    (void)tap("Switch", "Enable Zelvora");
    const Json all = get("/api/events")["events"];
    ASSERT_FALSE(all.empty());
    EXPECT_TRUE(get("/api/events?since=" + all.back()["number"].dump())["events"].empty());
    (void)get("/api/events?since=yesterday");
    EXPECT_EQ(status, 400);
    (void)get("/api/files?since=-1");
    EXPECT_EQ(status, 400);
}

TEST_F(TheInterface, ChangesTheNameOrderAtOnce) {
    const Json answer = post("/api/device", {{"sortOrdering", 0}, {"compositeNameFormat", 1}});
    EXPECT_EQ(answer["sortOrdering"], 0);
    EXPECT_EQ(host::device().compositeNameFormat, 1);
}

TEST_F(TheInterface, AsksForANewStartWhereTheLanguageChanges) {
    EXPECT_EQ(post("/api/device", {{"language", "de"}})["relaunching"], true);
    EXPECT_EQ(status, 202);
    ASSERT_TRUE(session->relaunchAsked());
    EXPECT_EQ(session->relaunchAsked()->language, "de");
}

TEST_F(TheInterface, RefusesADeviceThatCannotBe) {
    for (const Json &change : {Json{{"language", "../x"}}, Json{{"systemVersion", 8}},
                               Json{{"screen", "1x1"}}, Json{{"sortOrdering", 2}}, Json{{"bundle", "/etc"}},
                               Json{{"advance", -1}}, Json{{"colour", "red"}}}) {
        (void)post("/api/device", change);
        EXPECT_EQ(status, 400) << change;
    }
    EXPECT_FALSE(session->relaunchAsked());
}

TEST_F(TheInterface, AddsAndDeletesCallsAsThePhoneDoes) {
    const auto calls = [this] { return get("/api/database")["calls"].get<int>(); };
    EXPECT_EQ(calls(), 5);
    (void)post("/api/phone", {{"action", "addCall"}, {"number", "+1 202 555 0100"}});
    EXPECT_EQ(calls(), 6);
    EXPECT_EQ(get("/api/database")["recent"][0]["number"], "+1 202 555 0100");
    (void)post("/api/phone", {{"action", "deleteCall"}});
    EXPECT_EQ(calls(), 5);
    (void)post("/api/phone", {{"action", "deleteCall"}, {"row", 12345}});
    EXPECT_EQ(status, 404);
}

TEST_F(TheInterface, RefusesAPartThatThePhoneCannotPlay) {
    for (const Json &body : {Json{{"action", "explode"}}, Json::object(), Json{{"action", 7}},
                             Json{{"action", "addCall"}}, Json{{"action", "notify"}, {"name", ""}},
                             Json{{"action", "addCall"}, {"number", "1"}, {"seconds", "long"}},
                             Json{{"action", "deleteCall"}, {"row", "first"}}}) {
        (void)post("/api/phone", body);
        EXPECT_EQ(status, 400) << body;
    }
}

TEST_F(TheInterface, PostsANotificationAsAnotherProgramDoes) {
    (void)post("/api/phone", {{"action", "notify"}, {"name", "ZVAreaChanged"}});
    EXPECT_EQ(host::eventTexts(EventKind::notification), std::vector<std::string>{"ZVAreaChanged"});
}

TEST_F(TheInterface, MakesTheToolFail) {
    EXPECT_EQ(post("/api/zvtool", {{"fails", true}})["fails"], true);
    EXPECT_TRUE(phone.exists("/Library/Zelvora/zvtool.fail"));
    EXPECT_EQ(post("/api/zvtool", {{"fails", false}})["fails"], false);
    EXPECT_FALSE(phone.exists("/Library/Zelvora/zvtool.fail"));
    (void)post("/api/zvtool", {{"fails", "sometimes"}});
    EXPECT_EQ(status, 400);
}

TEST_F(TheInterface, ServesThePicturesOfTheScreenAndNoOthers) {
    const std::string screen = oneLine(get("/api/screen"));
    ASSERT_NE(screen.find("/api/image/0"), std::string::npos);
    const auto picture = during([this] { return client().Get("/api/image/0", known()); });
    EXPECT_EQ(picture->status, 200);
    EXPECT_EQ(picture->body.substr(1, 3), "PNG");
    (void)get("/api/image/999");
    EXPECT_EQ(status, 404);
}

TEST_F(TheInterface, ServesThePageAndItsModules) {
    for (const std::string path :
         {"/", "/main.js", "/css/phone.css", "/vendor/preact/preact.js", "/vendor/preact/h"}) {
        const auto file = during([&] { return client().Get(path, known()); });
        EXPECT_EQ(file->status, 200) << path;
        EXPECT_FALSE(file->body.empty()) << path;
    }
}

TEST_F(TheInterface, SaysThatADamagedCallHistoryCannotBeRead) {
    phone.write("/var/mobile/Library/CallHistoryDB/CallHistory.storedata", "this is no database at all");
    EXPECT_TRUE(get("/api/database").contains("error"));
    EXPECT_EQ(status, 409);
}

} // namespace sim
