// Every way in which a catalogue can be wrong, and what is said about it.
#include <gtest/gtest.h>

#include "replay_sdk/catalogue_helpers.h"

namespace metagen::replay {
namespace {

struct Case {
    std::string catalogue;
    const char* problem;
};

void expectProblems(const std::vector<Case>& cases) {
    for (const auto& [catalogue, problem] : cases)
        EXPECT_EQ(problemOf(catalogue), problem) << catalogue;
}

std::string withClass(const std::string& pluginClass) {
    return R"({"plugins":{"C":)" + pluginClass + "}}";
}

std::string withInstance(const std::string& instance) {
    return R"({"plugins":{},"instances":[)" + instance + "]}";
}

std::string withDefault(const std::string& taggedDefault) {
    return withParameter(R"({"typeCode":0,"default":)" + taggedDefault + "}");
}

TEST(WrongCatalogue, IsNotJson) {
    expectProblems({{"", "line 1: not JSON"},
                    {"{\"plugins\":\n{\"A\" }}", "line 2: not JSON"},
                    {"{\"plugins\":{},\n\n\"x\":1e999}", "line 3: not JSON"}});
}

TEST(WrongCatalogue, HasAWrongDocument) {
    expectProblems({
        {"[]", "/: must be an object"},
        {"{}", "/: must have \"plugins\""},
        {R"({"plugin":{}})", "/plugin: unknown member"},
        {R"({"plugins":[]})", "/plugins: must be an object"},
        {R"({"plugins":{},"classNames":["A"]})", "/classNames/0: unknown name \"A\""},
        {R"({"plugins":{},"classNames":"A"})", "/classNames: must be an array"},
        {R"({"plugins":{},"rendererErrorCode":true})",
         "/rendererErrorCode: must be an integer from -2147483648 to 2147483647"},
    });
}

TEST(WrongCatalogue, HasAWrongClass) {
    expectProblems({
        {withClass("null"), "/plugins/C: must be an object"},
        {withClass(R"({"param":{}})"), "/plugins/C/param: unknown member"},
        {withClass(R"({"type":"lamp"})"), "/plugins/C/type: unknown category \"lamp\""},
        {withClass(R"({"type":4})"), "/plugins/C/type: must be a text"},
        {withClass(R"({"type":"light","categories":[4]})"),
         "/plugins/C/categories: \"type\" says this already"},
        {withClass(R"({"categories":[64]})"),
         "/plugins/C/categories/0: must be an integer from 0 to 63"},
        {withClass(R"({"typeId":0})"), "/plugins/C/typeId: 0 stands for no class"},
        {withClass(R"({"typeId":1.5})"),
         "/plugins/C/typeId: must be an integer below 2^53, or a text like "
         "\"0xFFFF000000000005\""},
        {withClass(R"({"typeId":"0x"})"),
         "/plugins/C/typeId: must be an integer below 2^53, or a text like "
         "\"0xFFFF000000000005\""},
        {withClass(R"({"params":[]})"), "/plugins/C/params: must be an object"},
        {withClass(R"({"parameterNames":["p"]})"),
         "/plugins/C/parameterNames/0: unknown name \"p\""},
        {R"({"plugins":{"A":{"typeText":"B"},"B":{}}})",
         "/plugins/B: its type text is also that of \"A\""},
        {R"({"plugins":{"A":{"typeId":1},"B":{"typeId":1}}})",
         "/plugins/B: its type id is also that of \"A\""},
        {R"({"plugins":{"a\u0000b":{}}})",
         "/plugins/a: the interface can't give a name with a NUL"},
    });
}

TEST(WrongCatalogue, HasAWrongParameter) {
    constexpr const char* place = "/plugins/C/params/p";
    const std::pair<const char*, const char*> cases[] = {
        {"1", ": must be an object"},
        {"{}", ": must have a \"type\" or a \"typeCode\""},
        {R"({"type":"float","default_value":"1"})", "/default_value: unknown member"},
        {R"({"type":"Float"})", "/type: unknown type \"Float\""},
        {R"({"type":"a\u0000"})", "/type: the interface can't give a text with a NUL"},
        {R"({"type":"float","typeCode":1})", "/typeCode: \"type\" says this already"},
        {R"({"typeCode":1,"listType":"float"})", "/listType: \"typeCode\" says this already"},
        {R"({"type":"float","listType":"float"})",
         "/listType: stands only beside the type \"list\""},
        {R"({"type":"list","listType":"none"})", "/listType: unknown type \"none\""},
        {R"({"typeCode":2147483648})",
         "/typeCode: must be an integer from -2147483648 to 2147483647"},
        {R"({"typeCode":1,"elementsCount":-2})",
         "/elementsCount: must be an integer from -1 to 4294967295"},
        {R"({"typeCode":1,"elementsCount":0.5})",
         "/elementsCount: must be an integer from -1 to 4294967295"},
        {R"({"typeCode":1,"gpuSupport":"1"})",
         "/gpuSupport: must be an integer from -2147483648 to 2147483647"},
        {R"({"type":"float","defaultValue":1})", "/defaultValue: must be a text"},
        {R"json({"type":"list","listType":"integer","defaultValue":"IntList(01)"})json",
         "/defaultValue: no list value is written like this"},
        {R"({"type":"float","defaultValue":"1","default":{"kind":"float","value":1}})",
         "/default: \"defaultValue\" says this already"},
        {R"({"typeCode":1,"guide":[]})", "/guide: must be an object"},
        {R"({"typeCode":1,"guide":{"kind":22}})", "/guide/kind: unknown member"},
        {R"({"typeCode":1,"guide":{"float":"1"}})", "/guide/float: must be a number"},
        {R"({"typeCode":1,"guide":{"float":1e39}})",
         "/guide/float: is beyond the range of a float"},
        {R"({"typeCode":1,"guide":{"floats":[1,true]}})", "/guide/floats/1: must be a number"},
    };
    for (const auto& [parameter, problem] : cases)
        EXPECT_EQ(problemOf(withParameter(parameter)), place + std::string(problem)) << parameter;
    EXPECT_EQ(problemOf(R"({"plugins":{"C":{"params":{"a\u0000b":{"type":"float"}}}}})"),
              "/plugins/C/params/a: the interface can't give a name with a NUL");
}

TEST(WrongCatalogue, HasAWrongTaggedDefault) {
    const std::pair<const char*, const char*> cases[] = {
        {"[]", ": must be an object"},
        {"{}", ": must have a \"kind\""},
        {R"({"kind":"colour","value":[]})", "/kind: unknown kind \"colour\""},
        {R"({"kind":0.5})", "/kind: must be an integer from -2147483648 to 2147483647"},
        {R"({"kind":"integer"})", ": must have a \"value\""},
        {R"({"kind":"stringList"})", ": must have a \"value\""},
        {R"({"kind":"badValue","value":1})", "/value: this kind has no value"},
        {R"({"kind":20000,"value":null})", "/value: this kind has no value"},
        {R"({"kind":"integer","value":null})",
         "/value: must be an integer from -2147483648 to 2147483647"},
        {R"({"kind":"integer","value":2147483648})",
         "/value: must be an integer from -2147483648 to 2147483647"},
        {R"({"kind":"float","value":-1e39})", "/value: is beyond the range of a float"},
        {R"({"kind":"double","value":"infinity"})", "/value: must be a number"},
        {R"({"kind":"bool","value":256})", "/value: must be an integer from 0 to 255"},
        {R"({"kind":"bool","value":"1"})", "/value: must be true or false"},
        {R"({"kind":"color","value":[1,2]})", "/value: must have 3 numbers"},
        {R"({"kind":"acolor","value":[1,2,3,"4"]})", "/value/3: must be a number"},
        {R"({"kind":"colorList","value":[[1,2,3],[1]]})", "/value/1: must have 3 numbers"},
        {R"({"kind":"integerList","value":[1,1.5]})",
         "/value/1: must be an integer from -2147483648 to 2147483647"},
        {R"({"kind":"stringList","value":[1]})", "/value/0: must be a text"},
        {R"({"kind":"list","value":[{"kind":"list","value":[{"kind":"x"}]}]})",
         "/value/0/value/0/kind: unknown kind \"x\""},
        {R"({"kind":"plugin","value":5})", "/value: must be an object"},
        {R"({"kind":"plugin","value":{}})", "/value: must have an \"id\""},
        {R"({"kind":"plugin","value":{"id":9007199254740992}})",
         "/value/id: must be an integer below 2^53, or a text like \"0xFFFF000000000005\""},
        {R"({"kind":"plugin","value":{"id":"0x10000000000000000"}})",
         "/value/id: must be an integer below 2^53, or a text like \"0xFFFF000000000005\""},
        {R"({"kind":"plugin","value":{"id":1,"index":1}})", "/value/index: unknown member"},
    };
    for (const auto& [value, problem] : cases)
        EXPECT_EQ(problemOf(withDefault(value)),
                  "/plugins/C/params/p/default" + std::string(problem))
            << value;
}

TEST(WrongCatalogue, HasAWrongInstance) {
    expectProblems({
        {withInstance("1"), "/instances/0: must be an object"},
        {withInstance("{}"), "/instances/0: must have an \"id\""},
        {withInstance(R"({"id":140737488355328})"),
         "/instances/0/id: must fit into 48 bits with its sign"},
        {withInstance(R"({"id":-140737488355329})"),
         "/instances/0/id: must fit into 48 bits with its sign"},
        {withInstance(R"({"id":1},{"id":1})"), "/instances/1: another instance has this id"},
        {withInstance(R"({"id":1,"class":"A"})"), "/instances/0/class: unknown class \"A\""},
        {withInstance(R"({"id":1,"exists":1})"), "/instances/0/exists: must be true or false"},
        {withInstance(R"({"id":1,"propertyNames":{"one":"a"}})"),
         "/instances/0/propertyNames/one: the name must be a property's index, a 32-bit integer"},
        {withInstance(R"({"id":1,"propertyNames":{"1":null}})"),
         "/instances/0/propertyNames/1: must be a text"},
    });
}

}  // namespace
}  // namespace metagen::replay
