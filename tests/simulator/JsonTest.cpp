#include "simulator/api/EventJson.h"
#include "simulator/api/GestureJson.h"
#include "simulator/api/TreeJson.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace sim {

using host::Element;
using Json = nlohmann::json;

namespace {

std::string fault(const std::string &json) {
    const auto read = gestureFromJson(Json::parse(json));
    const auto *reason = std::get_if<std::string>(&read);
    return reason ? *reason : "";
}

GestureRequest request(const std::string &json) {
    return std::get<GestureRequest>(gestureFromJson(Json::parse(json)));
}

} // namespace

TEST(AnElementAsJson, LeavesOutWhatSaysNothing) {
    ImageNames images;
    const Json json = toJson(Element{.type = "StaticText"}, images);
    EXPECT_EQ(json, Json::parse(R"({"type":"StaticText","rect":{"x":0,"y":0,"width":0,"height":0}})"));
}

TEST(AnElementAsJson, SaysWhatAPersonSees) {
    ImageNames images;
    const Element element{.type = "Switch",
                          .identifier = "Enabled",
                          .label = "Enable \"it\" 启用",
                          .value = "1",
                          .enabled = false,
                          .selected = true,
                          .rect = {1, 2.5, 3, 4},
                          .number = 17,
                          .part = "left",
                          .attributes = {{"role", std::string("text")}, {"open", true}, {"size", 17.0}}};
    EXPECT_EQ(toJson(element, images), Json::parse(R"({"type":"Switch","identifier":"Enabled",
        "label":"Enable \"it\" 启用","value":"1","enabled":false,"selected":true,"part":"left","number":17,
        "rect":{"x":1,"y":2.5,"width":3,"height":4},"attributes":{"role":"text","open":true,"size":17}})"));
}

TEST(AnElementAsJson, ContainsItsChildrenInOrder) {
    ImageNames images;
    Element cell{.type = "Cell"};
    cell.children = {Element{.type = "Image"}, Element{.type = "StaticText"}};
    const Json json = toJson(cell, images);
    ASSERT_EQ(json["children"].size(), 2U);
    EXPECT_EQ(json["children"][0]["type"], "Image");
    EXPECT_EQ(json["children"][1]["type"], "StaticText");
}

class AnImage : public testing::Test {
protected:
    void SetUp() override {
        folder = std::filesystem::path(testing::TempDir()) / ("zv-images-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder / "device");
        std::ofstream(folder / "device" / "a.png") << "a";
        std::ofstream(folder / "secret.png") << "s";
        std::filesystem::create_symlink(folder / "secret.png", folder / "device" / "link.png");
        images.allow(folder / "device");
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    [[nodiscard]] Json shown(const std::string &file) {
        const Element image{.type = "Image", .attributes = {{"image", (folder / file).string()}}};
        return toJson(image, images)["attributes"]["image"];
    }

    std::filesystem::path folder;
    ImageNames images;
};

TEST_F(AnImage, HasAnAddressInsteadOfAPath) {
    EXPECT_EQ(shown("device/a.png"), "/api/image/0");
    EXPECT_EQ(shown("device/a.png"), "/api/image/0");
    EXPECT_EQ(images.file("0"), std::filesystem::canonical(folder / "device" / "a.png"));
}

TEST_F(AnImage, OutsideTheDeviceIsNotShown) {
    EXPECT_EQ(shown("secret.png"), Json());
    EXPECT_EQ(shown("device/../secret.png"), Json());
    EXPECT_EQ(shown("device/link.png"), Json());
    EXPECT_EQ(shown("device/missing.png"), Json());
}

TEST_F(AnImage, IsFoundByItsNameAlone) {
    EXPECT_EQ(shown("device/a.png"), "/api/image/0");
    for (const std::string name : {"", "1", "-1", "0x0", "../0", "0/", "99999999999999999999"})
        EXPECT_FALSE(images.file(name)) << name;
}

TEST(AGestureAsJson, NamesItsElement) {
    const GestureRequest read =
        request(R"({"kind":"slide","number":12,"part":"knob","amount":0.5,"text":"t"})");
    EXPECT_EQ(read.gesture.kind, host::GestureKind::slide);
    EXPECT_EQ(read.gesture.number, 12U);
    EXPECT_EQ(read.gesture.part, "knob");
    EXPECT_EQ(read.gesture.amount, 0.5);
    EXPECT_EQ(read.gesture.text, "t");
    EXPECT_FALSE(read.element);
}

TEST(AGestureAsJson, MayDescribeItsElement) {
    const GestureRequest read = request(R"({"kind":"tap","element":{"type":"Cell","label":"Blacklist"}})");
    ASSERT_TRUE(read.element);
    EXPECT_EQ(read.element->type, "Cell");
    EXPECT_EQ(read.element->label, "Blacklist");
}

TEST(AGestureAsJson, KnowsEveryGesture) {
    for (const std::string kind :
         {"tap", "slide", "type", "replace", "clear", "returnKey", "swipe", "closeSwipe", "scroll", "back",
          "backSwipe", "backSwipeGivenUp", "tapOutside"})
        EXPECT_EQ(fault(R"({"kind":")" + kind + "\"}"), "") << kind;
}

TEST(AGestureAsJson, SaysWhyItIsNone) {
    EXPECT_EQ(fault(R"({"kind":"shake"})"), "there is no gesture \"shake\"");
    EXPECT_EQ(fault("{}"), "\"kind\" must name a gesture");
    for (const std::string json :
         {R"({"kind":7})", R"({"kind":"tap","number":-1})", R"({"kind":"tap","number":"1"})",
          R"({"kind":"tap","number":1.5})", R"({"kind":"slide","amount":"x"})", R"({"kind":"tap","part":1})",
          R"({"kind":"type","text":[]})", R"({"kind":"tap","element":"Blacklist"})",
          R"({"kind":"tap","element":{}})", R"({"kind":"tap","element":{"label":1}})",
          R"({"kind":"tap","element":{"colour":"red"}})", R"({"kind":"tap","speed":1})"})
        EXPECT_NE(fault(json), "") << json;
}

TEST(ADescribedElement, IsTheFirstThatCanBeActedOn) {
    Element screen{.type = "Window"};
    screen.children = {Element{.type = "StaticText", .label = "Blacklist"},
                       Element{.type = "Cell", .label = "Blacklist", .number = 3},
                       Element{.type = "Cell", .label = "Blacklist", .number = 4}};
    const Element *found = findElement(screen, {.label = "Blacklist"});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->number, 3U);
    EXPECT_FALSE(findElement(screen, {.label = "Whitelist"}));
}

TEST(ADescribedElement, MayBeAFieldThatIsCalledByItsPlaceholder) {
    const Element field{
        .type = "TextField", .number = 5, .attributes = {{"placeholder", std::string("Phone Number")}}};
    EXPECT_EQ(findElement(field, {.label = "Phone Number"}), &field);
}

TEST(AnEventAsJson, CarriesTheVibrationAsData) {
    const host::Event event{.number = 1,
                            .time = 2,
                            .kind = host::EventKind::vibration,
                            .text = R"({"sound":4095,"pattern":[[true,500]],"intensity":0.3})"};
    const Json json = toJson(event);
    EXPECT_EQ(json["kind"], "vibration");
    EXPECT_EQ(json["vibration"]["pattern"][0][1], 500);
}

TEST(AnEventAsJson, CarriesTheStatusOfACommand) {
    const host::Event event{.number = 5, .kind = host::EventKind::command, .text = "rm -f x", .status = 1};
    EXPECT_EQ(toJson(event), Json::parse(R"({"number":5,"time":0,"kind":"command","text":"rm -f x",
        "detail":"","status":1})"));
}

} // namespace sim
