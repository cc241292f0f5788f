#include "cli/SessionRequest.h"

#include "platform/base/CodePage.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::string ErrorOf(const std::string& rsLine)
{
    try {
        gParseRequest(rsLine);
    } catch (const CRequestError& rError) {
        return rError.what();
    }
    return "none";
}

TStep StepOf(const std::string& rsLine)
{
    return std::get<TStepRequest>(gParseRequest(rsLine)).step;
}

TEST(SessionRequest, SaysWhatIsWrong)
{
    struct Case {
        const char* pName;
        std::string sLine;
        const char* pError;
    };
    const std::vector<Case> cases{
        {"an empty line", "", "the line isn't JSON from byte 1 on"},
        {"blanks", "  ", "the line isn't JSON from byte 3 on"},
        {"no JSON", "open", "the line isn't JSON from byte 1 on"},
        {"cut off", R"({"op":"state")", "the line isn't JSON from byte 14 on"},
        {"two values", R"({"op":"state"} {})", "the line isn't JSON from byte 16 on"},
        {"a NUL", std::string("{\0}", 3), "the line isn't JSON from byte 2 on"},
        {"a NUL behind the object", std::string("{\"op\":\"close\"}\0garbage {{", 26),
         "the line isn't JSON from byte 15 on"},
        {"a NUL at the end", std::string("{\"op\":\"close\"} \0", 17),
         "the line isn't JSON from byte 16 on"},
        {"bad UTF-8", "{\"op\":\"\xff\"}", "the line isn't JSON from byte 8 on"},
        {"a lone surrogate", R"({"op":"\ud800"})", "the line isn't JSON from byte 14 on"},
        {"a low surrogate alone", R"({"op":"\udc00x"})", "the line isn't JSON from byte 13 on"},
        {"a huge number", R"({"op":1e999})", "the line holds a number that is too big"},
        {"as deep as may be", R"({"op":)" + std::string(99, '[') + std::string(99, ']') + '}',
         R"(the member "op" isn't a text)"},
        {"one deeper", R"({"op":)" + std::string(100, '[') + std::string(100, ']') + '}',
         "the line is nested more than 100 deep"},
        {"objects, deep",
         [] {
             std::string sLine;
             for (int n = 0; n < 100'000; ++n)
                 sLine += R"({"op":)";
             return sLine;
         }(),
         "the line is nested more than 100 deep"},
        {"an array", R"(["state"])", "the line isn't a JSON object"},
        {"a text", R"("state")", "the line isn't a JSON object"},
        {"null", "null", "the line isn't a JSON object"},
        {"no operation", "{}", R"(the member "op" is missing)"},
        {"no text as operation", R"({"op":1})", R"(the member "op" isn't a text)"},
        {"unknown operation", R"({"op":"slect"})",
         R"(there is no request "slect"; did you mean "select"?)"},
        {"letter case counts", R"({"op":"State"})",
         R"(there is no request "State"; did you mean "state"?)"},
        {"unknown member", R"({"op":"set","field":"a","txt":"b"})",
         R"(the request has no member "txt"; did you mean "text"?)"},
        {"a member too many", R"({"op":"state","x":1})", R"(the request has no member "x")"},
        {"a member twice", R"({"op":"state","op":"close"})",
         R"(the member "op" stands there twice)"},
        {"a control character in a name", R"({"op":"a\u0000\u001bb"})",
         R"(there is no request "a\x00\x1Bb"; did you mean "tab"?)"},
        {"no page", R"({"op":"open"})", R"(the member "page" is missing)"},
        {"page is no text", R"({"op":"open","page":null})", R"(the member "page" isn't a text)"},
        {"no field", R"({"op":"set","text":"a"})", R"(the member "field" is missing)"},
        {"no text", R"({"op":"set","field":"a"})", R"(the member "text" is missing)"},
        {"text is a number", R"({"op":"set","field":"a","text":27})",
         R"(the member "text" isn't a text)"},
        {"neither index nor entry", R"({"op":"select","field":"a"})",
         R"(one of the members "index" and "entry" is wanted)"},
        {"both index and entry", R"({"op":"select","field":"a","index":1,"entry":"b"})",
         R"(one of the members "index" and "entry" is wanted)"},
        {"index is a text", R"({"op":"select","field":"a","index":"1"})",
         R"(the member "index" isn't an index)"},
        {"index is no whole number", R"({"op":"choose","field":"a","index":1.5})",
         R"(the member "index" isn't an index)"},
        {"index too big", R"({"op":"choose","field":"a","index":2147483648})",
         R"(the member "index" isn't an index)"},
        {"index too small", R"({"op":"choose","field":"a","index":-2147483649})",
         R"(the member "index" isn't an index)"},
        {"index beyond all", R"({"op":"choose","field":"a","index":18446744073709551615})",
         R"(the member "index" isn't an index)"},
        {"on is a number", R"({"op":"check","field":"a","on":1})",
         R"(the member "on" isn't true or false)"},
        {"unknown key", R"({"op":"key","key":"return"})",
         R"(there is no key "return"; the keys are enter, escape, tab, shift+tab, up, down, )"
         R"(left, right, space and alt+X)"},
        {"alt and nothing", R"({"op":"key","key":"alt+"})",
         R"(there is no key "alt+"; the keys are enter, escape, tab, shift+tab, up, down, )"
         R"(left, right, space and alt+X)"},
        {"answers are no list", R"({"op":"answers","answers":"yes"})",
         R"(the member "answers" isn't a list of "yes" and "no")"},
        {"an answer is neither", R"({"op":"answers","answers":["yes",false]})",
         R"(the member "answers" isn't a list of "yes" and "no")"},
        {"no way to end the file dialog", R"({"op":"file"})",
         R"(one of the members "path", "cancel" and "invalid" is wanted)"},
        {"two ways", R"({"op":"file","path":"a","cancel":true})",
         R"(one of the members "path", "cancel" and "invalid" is wanted)"},
        {"not cancelled", R"({"op":"file","cancel":false})",
         R"(the member "cancel" can only be true)"},
        {"not invalid", R"({"op":"file","invalid":1})",
         R"(the member "invalid" isn't true or false)"},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(ErrorOf(rCase.sLine), rCase.pError) << rCase.pName;
}

TEST(SessionRequest, IsReadAsTheStepThatItMeans)
{
    struct Case {
        const char* pLine;
        TStep step;
        bool bOnFrame;
    };
    const std::vector<Case> cases{
        {R"({"op":"set","field":"a","text":"b\u0000\r\n"})",
         {.op = EStep::Set, .sKey = "a", .sText = CString("b\0\r\n", 4)},
         false},
        {R"({"op":"select","field":"a","index":-1})",
         {.op = EStep::Select, .sKey = "a", .nIndex = -1},
         false},
        {R"({"op":"select","field":"a","entry":"b"})",
         {.op = EStep::SelectEntry, .sKey = "a", .sText = "b"},
         false},
        {R"({"op":"check","field":"a","on":true})",
         {.op = EStep::Check, .sKey = "a", .nIndex = 1},
         false},
        {R"({"op":"choose","field":"a","index":2})",
         {.op = EStep::Choose, .sKey = "a", .nIndex = 2},
         false},
        {R"({"op":"click","field":"a"})", {.op = EStep::Click, .sKey = "a"}, false},
        {R"({"op":"double-click","field":"a"})", {.op = EStep::DoubleClick, .sKey = "a"}, false},
        {R"({"op":"focus","field":"a"})", {.op = EStep::Focus, .sKey = "a"}, false},
        {R"({"op":"insert"})", {.op = EStep::Click, .sKey = "insert"}, true},
        {R"({"op":"close"})", {.op = EStep::Click, .sKey = "close"}, true},
        {R"({"op":"expand","path":"A/b"})",
         {.op = EStep::Expand, .sKey = "tree", .sText = "A/b"},
         true},
        {R"({"op":"collapse","path":"A"})",
         {.op = EStep::Collapse, .sKey = "tree", .sText = "A"},
         true},
    };
    for (const Case& rCase : cases) {
        const auto request = std::get<TStepRequest>(gParseRequest(rCase.pLine));
        EXPECT_EQ(request.step.op, rCase.step.op) << rCase.pLine;
        EXPECT_EQ(request.step.sKey, rCase.step.sKey) << rCase.pLine;
        EXPECT_EQ(request.step.sText, rCase.step.sText) << rCase.pLine;
        EXPECT_EQ(request.step.nIndex, rCase.step.nIndex) << rCase.pLine;
        EXPECT_EQ(request.step.bOnFrame, rCase.bOnFrame) << rCase.pLine;
    }
}

TEST(SessionRequest, EveryKeyIsKnown)
{
    using EKey = TUserKey::EKey;
    struct Case {
        const char* pName;
        EKey key;
        bool bShift;
        char cMnemonic;
    };
    const std::vector<Case> cases{
        {"enter", EKey::Enter, false, 0}, {"escape", EKey::Escape, false, 0},
        {"tab", EKey::Tab, false, 0},     {"shift+tab", EKey::Tab, true, 0},
        {"up", EKey::Up, false, 0},       {"down", EKey::Down, false, 0},
        {"left", EKey::Left, false, 0},   {"right", EKey::Right, false, 0},
        {"space", EKey::Space, false, 0}, {"alt+L", EKey::Mnemonic, false, 'L'},
    };
    for (const Case& rCase : cases) {
        const TStep step = StepOf(R"({"op":"key","key":")" + std::string(rCase.pName) + "\"}");
        EXPECT_EQ(step.op, EStep::Key) << rCase.pName;
        EXPECT_EQ(step.key.key, rCase.key) << rCase.pName;
        EXPECT_EQ(step.key.bShift, rCase.bShift) << rCase.pName;
        EXPECT_EQ(step.key.cMnemonic, rCase.cMnemonic) << rCase.pName;
    }
}

TEST(SessionRequest, AnswersAndFilesAreRead)
{
    EXPECT_EQ(std::get<TAnswersRequest>(gParseRequest(R"({"op":"answers","answers":["yes","no"]})"))
                  .answers,
              (std::deque<bool>{true, false}));
    const auto choice = [](const char* pLine) {
        return std::get<TFileRequest>(gParseRequest(pLine)).choice;
    };
    EXPECT_EQ(choice(R"({"op":"file","path":"/a"})").end, TFileChoice::EEnd::Chosen);
    EXPECT_EQ(choice(R"({"op":"file","path":"/a"})").sPath, "/a");
    EXPECT_EQ(choice(R"({"op":"file","cancel":true})").end, TFileChoice::EEnd::Cancelled);
    EXPECT_EQ(choice(R"({"op":"file","invalid":true})").end, TFileChoice::EEnd::InvalidName);
}

TEST(SessionRequest, ATextIsEncodedInTheCodePage)
{
    gSetSystemCodePage(kCodePageWindows1252);
    EXPECT_EQ(StepOf("{\"op\":\"set\",\"field\":\"a\",\"text\":\"\u00e9\"}").sText, "\xe9");
    EXPECT_EQ(ErrorOf("{\"op\":\"set\",\"field\":\"a\",\"text\":\"\u0439\"}"),
              R"(the member "text" doesn't fit in code page 1252)");
    gSetSystemCodePage(kCodePageUtf8);
    EXPECT_EQ(StepOf(R"({"op":"set","field":"a","text":"\ud83d\ude00"})").sText,
              "\xf0\x9f\x98\x80");
}

TEST(SessionRequest, SizeDoesNotHurt)
{
    const std::string sDeep(200000, '[');
    EXPECT_EQ(ErrorOf(sDeep), "the line is nested more than 100 deep");
    EXPECT_EQ(ErrorOf(sDeep + std::string(200000, ']')), "the line is nested more than 100 deep");
    const std::string sLong(1 << 20, 'x');
    EXPECT_EQ(StepOf(R"({"op":"set","field":"a","text":")" + sLong + "\"}").sText, sLong);
    EXPECT_EQ(ErrorOf(R"({"op":")" + sLong + "\"}"),
              "there is no request \"" + sLong.substr(0, 80) + "...\"");
}
} // namespace
} // namespace quorvawiz::cli
