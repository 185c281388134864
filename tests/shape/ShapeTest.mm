// The classes of the loaded bundle, looked at through the runtime, against their one description.
#import <Foundation/Foundation.h>

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <objc/runtime.h>
#include <string>
#include <vector>

namespace {

using Json = nlohmann::json;
using Pairs = std::vector<std::pair<std::string, std::string>>; // name and symbolic type

const Json &shape() {
    static const Json description = Json::parse(std::ifstream(ZV_SHAPE));
    return description;
}

Class loadedClass(const std::string &name) {
    static const bool loaded = [[NSBundle bundleWithPath:@ZV_BUNDLE_PATH] load];
    EXPECT_TRUE(loaded) << ZV_BUNDLE_PATH;
    return objc_getClass(name.c_str());
}

std::string symbolicObject(const std::string &encoding) {
    if (encoding == "@")
        return "object";
    const std::string name = encoding.substr(2, encoding.size() - 3); // between @" and "
    return name.front() == '<' ? "object" + name : "object:" + name;
}

// The type that an encoding stands for on this system, where a word has 64 bits.
std::string symbolicType(std::string encoding) {
    while (!encoding.empty() && std::string("rnNoORV").find(encoding.front()) != std::string::npos)
        encoding.erase(0, 1);
    const bool isBool = encoding == @encode(BOOL);
    if (encoding.front() == '@')
        return symbolicObject(encoding);
    if (encoding.front() == '^')
        return "pointer";
    if (encoding == "v")
        return "void";
    if (isBool)
        return "BOOL";
    if (encoding == @encode(int))
        return "int";
    if (encoding == @encode(float))
        return "float";
    if (encoding == @encode(double))
        return "CGFloat";
    if (encoding == @encode(NSInteger))
        return "integer";
    if (encoding == @encode(unsigned long long))
        return "unsigned long long";
    return "unknown " + encoding;
}

// NSMethodSignature knows how to take an encoding apart.
std::string signature(const char *types) {
    NSMethodSignature *method = [NSMethodSignature signatureWithObjCTypes:types];
    std::string text = symbolicType([method methodReturnType]);
    for (NSUInteger index = 2; index < [method numberOfArguments]; ++index)
        text += " " + symbolicType([method getArgumentTypeAtIndex:index]);
    return text;
}

Pairs methodsOf(Class cls) {
    unsigned count = 0;
    Method *methods = class_copyMethodList(cls, &count);
    Pairs result;
    for (unsigned index = 0; index < count; ++index)
        result.emplace_back(sel_getName(method_getName(methods[index])),
                            signature(method_getTypeEncoding(methods[index])));
    free(methods);
    return result;
}

Pairs ivarsOf(Class cls) {
    unsigned count = 0;
    Ivar *ivars = class_copyIvarList(cls, &count);
    Pairs result;
    for (unsigned index = 0; index < count; ++index)
        result.emplace_back(ivar_getName(ivars[index]), symbolicType(ivar_getTypeEncoding(ivars[index])));
    free(ivars);
    return result;
}

// This runtime does not know optional methods; those are checked in the phone's executable.
Pairs requiredMethodsOf(Protocol *protocol) {
    unsigned count = 0;
    auto *methods = protocol_copyMethodDescriptionList(protocol, YES, YES, &count);
    Pairs result;
    for (unsigned index = 0; index < count; ++index)
        result.emplace_back(sel_getName(methods[index].name), signature(methods[index].types));
    free(methods);
    return result;
}

std::vector<std::string> protocolsOf(Class cls) {
    unsigned count = 0;
    Protocol **protocols = class_copyProtocolList(cls, &count);
    std::vector<std::string> names;
    for (unsigned index = 0; index < count; ++index)
        names.emplace_back(protocol_getName(protocols[index]));
    free(protocols);
    return names;
}

template<typename Value>
std::vector<Value> sorted(std::vector<Value> values) {
    std::sort(values.begin(), values.end());
    return values;
}

class BundleClass : public testing::TestWithParam<Json> {
protected:
    void SetUp() override { ASSERT_NE(cls, nullptr) << "the bundle has no such class"; }

    const Json &description = GetParam();
    Class cls = loadedClass(description["name"]);
};

TEST_P(BundleClass, HasItsBase) {
    EXPECT_EQ(class_getName(class_getSuperclass(cls)), description["base"]);
}

TEST_P(BundleClass, HasItsVariablesInOrder) {
    EXPECT_EQ(ivarsOf(cls), description["ivars"].get<Pairs>());
}

TEST_P(BundleClass, AdoptsItsProtocols) {
    EXPECT_EQ(sorted(protocolsOf(cls)), sorted(description["protocols"].get<std::vector<std::string>>()));
}

TEST_P(BundleClass, HasItsMethodsAndNoOthers) {
    EXPECT_EQ(sorted(methodsOf(cls)), sorted(description["methods"].get<Pairs>()));
}

// The runtime lists the methods of each category by themselves.
TEST_P(BundleClass, HasItsMethodsInOrderInEachPart) {
    const Pairs order = description["methods"].get<Pairs>();
    std::size_t parts = 1;
    auto previous = order.begin();
    for (const auto &method : methodsOf(cls)) {
        const auto place = std::find(order.begin(), order.end(), method);
        parts += place < previous;
        previous = place;
    }
    EXPECT_LE(parts, description["categories"].size() + 1);
}

TEST_P(BundleClass, HasItsClassMethodsAndNoOthers) {
    EXPECT_EQ(sorted(methodsOf(object_getClass(cls))), sorted(description["classMethods"].get<Pairs>()));
}

std::string className(const testing::TestParamInfo<Json> &info) {
    return info.param["name"];
}

class BundleProtocol : public testing::TestWithParam<Json> {};

TEST_P(BundleProtocol, AsksForItsMethods) {
    loadedClass("ZelvoraSettingsController");
    Protocol *protocol = objc_getProtocol(GetParam()["name"].get<std::string>().c_str());
    ASSERT_NE(protocol, nullptr);
    EXPECT_EQ(requiredMethodsOf(protocol), GetParam()["required"].get<Pairs>());
}

// Nor does it know properties: what can be seen of them are their accessors.
TEST_P(BundleClass, AnswersToTheAccessorsOfItsProperties) {
    for (const auto &property : description["properties"]) {
        std::string getter = property[0], setter = getter;
        setter = "set" + std::string(1, static_cast<char>(std::toupper(setter[0]))) + setter.substr(1) + ":";
        for (const std::string attribute : property[1]) {
            if (attribute == "readonly")
                setter.clear();
            if (attribute.starts_with("getter="))
                getter = attribute.substr(7);
        }
        EXPECT_TRUE(class_respondsToSelector(cls, sel_registerName(getter.c_str()))) << getter;
        EXPECT_TRUE(setter.empty() || class_respondsToSelector(cls, sel_registerName(setter.c_str())))
            << setter;
    }
}

INSTANTIATE_TEST_SUITE_P(Shape, BundleProtocol,
                         testing::ValuesIn(shape()["protocols"].get<std::vector<Json>>()), className);
INSTANTIATE_TEST_SUITE_P(Shape, BundleClass, testing::ValuesIn(shape()["classes"].get<std::vector<Json>>()),
                         className);

} // namespace
