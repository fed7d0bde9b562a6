#include "platform/json.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace orl {
namespace {

struct Inner {
    bool on = false;
    bool operator==(const Inner &) const = default;
};

struct Outer {
    QString text;
    qint64 integer = 0;
    double real = 0;
    QUuid uuid;
    QStringList texts;
    QList<bool> booleans;
    Inner inner;
    QList<Inner> inners;
    std::optional<QString> note;
    std::optional<Inner> maybe;
    std::optional<QList<Inner>> maybes;
    std::optional<bool> flag;
};

Inner decodeInner(JsonDecoder &json) {
    return {json.boolean("on")};
}

Outer decodeOuter(JsonDecoder &json) {
    return {json.text("text"),
            json.integer("integer"),
            json.real("real"),
            json.uuid("uuid"),
            json.textList("texts"),
            json.booleanList("booleans"),
            json.object("inner", decodeInner),
            json.list("inners", decodeInner),
            json.optionalText("note"),
            json.optionalObject("maybe", decodeInner),
            json.optionalList("maybes", decodeInner),
            json.optionalBoolean("flag")};
}

const QByteArray full = R"({
    "text": "a\u00e9", "integer": -9007199254740993, "real": 0.1, "uuid": "0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9",
    "texts": ["x", ""], "booleans": [true, false], "inner": {"on": true}, "inners": [{"on": false}, {"on": true}],
    "unknown": {"deep": [1, null]}
})";

TEST(JsonTest, ReadsEveryTypeAndPassesOverUnknownKeys) {
    const Result<Outer> read = decodeJson(full, decodeOuter);
    ASSERT_TRUE(read.ok()) << read.error().description.toStdString();
    const Outer &outer = read.value();
    EXPECT_EQ(outer.text, QStringLiteral("a\u00e9"));
    EXPECT_EQ(outer.integer, -9007199254740993);
    EXPECT_EQ(outer.real, 0.1);
    EXPECT_EQ(uuidText(outer.uuid), QStringLiteral("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"));
    EXPECT_EQ(outer.texts, QStringList({QStringLiteral("x"), QString()}));
    EXPECT_EQ(outer.booleans, QList<bool>({true, false}));
    EXPECT_TRUE(outer.inner.on);
    EXPECT_EQ(outer.inners, QList<Inner>({{false}, {true}}));
    EXPECT_FALSE(outer.note || outer.maybe || outer.maybes || outer.flag);
}

struct Change {
    const char *name;
    const char *key;
    const char *value; // null: the key is taken out
    const char *error; // empty: the document decodes
};

class JsonChangeTest : public testing::TestWithParam<Change> {};

TEST_P(JsonChangeTest, IsJudgedByItsType) {
    const Change &change = GetParam();
    QJsonObject object = QJsonDocument::fromJson(full).object();
    const QString key = QString::fromLatin1(change.key);
    object.remove(key);
    QByteArray document = encodeJson(object);
    if (change.value) document.insert(1, QByteArray("\"") + change.key + "\":" + change.value + ",");
    const Result<Outer> read = decodeJson(document, decodeOuter);
    EXPECT_EQ(read.ok() ? QString() : read.error().description, QString::fromLatin1(change.error));
}

const Change changes[] = {
    {"TextMissing", "text", nullptr, "text: a text is expected, but the key is missing"},
    {"TextNull", "text", "null", "text: a text is expected"},
    {"TextNumber", "text", "1", "text: a text is expected"},
    {"TextHalfSurrogate", "text", R"("\ud800")", "text: a text is expected"},
    {"BooleanNumber", "inner", R"({"on": 1})", "inner.on: a boolean is expected"},
    {"BooleanText", "inner", R"({"on": "true"})", "inner.on: a boolean is expected"},
    {"IntegerFraction", "integer", "3.5", "integer: an integer is expected"},
    {"IntegerWholeReal", "integer", "3.0", ""},
    {"IntegerExponent", "integer", "1e3", ""},
    {"IntegerLargest", "integer", "9223372036854775807", ""},
    {"IntegerTooLarge", "integer", "9223372036854775809", "integer: an integer is expected"},
    {"IntegerBoolean", "integer", "true", "integer: a number is expected"},
    {"RealInteger", "real", "3", ""},
    {"RealText", "real", "\"3\"", "real: a number is expected"},
    {"UuidUpperCase", "uuid", "\"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9\"", ""},
    {"UuidZero", "uuid", "\"00000000-0000-0000-0000-000000000000\"", ""},
    {"UuidBraces", "uuid", "\"{0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9}\"", "uuid: a UUID is expected"},
    {"UuidShort", "uuid", "\"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f\"", "uuid: a UUID is expected"},
    {"UuidTail", "uuid", "\"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9x\"", "uuid: a UUID is expected"},
    {"UuidEmpty", "uuid", "\"\"", "uuid: a UUID is expected"},
    {"TextListElement", "texts", R"(["x", null])", "texts[1]: a text is expected"},
    {"BooleanListElement", "booleans", "[true, 0]", "booleans[1]: a boolean is expected"},
    {"ObjectList", "inner", "[]", "inner: an object is expected"},
    {"ObjectMissing", "inner", nullptr, "inner: an object is expected, but the key is missing"},
    {"RecordInList", "inners", R"([{"on": true}, {"on": null}])", "inners[1].on: a boolean is expected"},
    {"ListElementNoObject", "inners", "[7]", "inners[0]: an object is expected"},
    {"ListObject", "inners", "{}", "inners: a list is expected"},
    {"OptionalNull", "note", "null", ""},
    {"OptionalWrongType", "note", "[]", "note: a text is expected"},
    {"OptionalObjectNull", "maybe", "null", ""},
    {"OptionalObjectBad", "maybe", "{}", "maybe.on: a boolean is expected, but the key is missing"},
    {"OptionalListNull", "maybes", "null", ""},
    {"OptionalListBad", "maybes", R"([{"on": 2}])", "maybes[0].on: a boolean is expected"},
    {"OptionalBooleanBad", "flag", "\"\"", "flag: a boolean is expected"},
};

INSTANTIATE_TEST_SUITE_P(Changes, JsonChangeTest, testing::ValuesIn(changes),
                         [](const auto &change) { return change.param.name; });

TEST(JsonTest, RejectsWhatIsNoDocument) {
    const QByteArray documents[] = {
        "", "{", "[]", "7", "{} x", R"({"text": 'x'})", "{\"text\": \"\xff\"}", QByteArray(100'000, '[')};
    for (const QByteArray &document : documents) {
        const Result<Outer> read = decodeJson(document, decodeOuter);
        EXPECT_FALSE(read.ok()) << document.left(40).toStdString();
    }
}

TEST(JsonTest, ReadsListsAtTheTop) {
    EXPECT_EQ(decodeJsonList(R"([{"on": true}])", decodeInner).value(), QList<Inner>({{true}}));
    EXPECT_EQ(decodeJsonList(R"([{"on": true}, {}])", decodeInner).error().description,
              QStringLiteral("[1].on: a boolean is expected, but the key is missing"));
    EXPECT_EQ(decodeJsonTextList(R"(["a", "b"])").value(),
              QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(decodeJsonTextList(R"(["a", 1])").error().description,
              QStringLiteral("[1]: a text is expected"));
    EXPECT_FALSE(decodeJsonTextList(R"({"a": "b"})").ok());
}

TEST(JsonTest, KeepsTheFirstErrorOfARecordsOwn) {
    const auto decode = [](JsonDecoder &json) {
        json.fail("text", QStringLiteral("not in the vocabulary"));
        return json.integer("text");
    };
    EXPECT_EQ(decodeJson(full, decode).error().description, QStringLiteral("text: not in the vocabulary"));
}

TEST(JsonTest, EncodesDoublesSoThatTheyReadBackTheSame) {
    for (const double number : {0.1, 1767225600.123456, 1e-300, -0.0, 5e-324, 9007199254740993.0}) {
        const QByteArray document = encodeJson(QJsonObject{{QStringLiteral("n"), number}});
        const auto decode = [](JsonDecoder &json) { return json.real("n"); };
        EXPECT_EQ(decodeJson(document, decode).value(), number) << document.toStdString();
    }
}

} // namespace
} // namespace orl
