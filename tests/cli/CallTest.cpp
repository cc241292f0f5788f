#include "support/RunProgram.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The command as a script meets it: each call with its reply, byte for byte.

namespace
{
struct TExchange {
    std::string sCall;
    std::string sReply;
};

void ExpectReplies(std::vector<std::string> arguments, const std::vector<TExchange>& rExchanges)
{
    std::string sCalls;
    std::string sReplies;
    for (const TExchange& rExchange : rExchanges) {
        sCalls += rExchange.sCall + '\n';
        sReplies += rExchange.sReply + '\n';
    }
    arguments.insert(arguments.begin(), "call");
    EXPECT_EQ(gRunQuorvawiz(arguments, sCalls), (TProgramRun{sReplies, "", 0}));
}

/// A call by name and arguments, and the result it gives.
TExchange Gives(const std::string& rsFunction, const std::string& rsArguments,
                const std::string& rsResult)
{
    return {R"({"fn":")" + rsFunction + R"(","args":[)" + rsArguments + "]}",
            R"({"ok":true,"result":)" + rsResult + "}"};
}

TExchange Fails(const std::string& rsLine, const std::string& rsError)
{
    return {rsLine, R"({"ok":false,"error":")" + rsError + "\"}"};
}

TEST(Call, Numbers)
{
    ExpectReplies(
        {}, {
                Gives("gFormatEngineering", R"(1500,8,false,false,true,"spice",null)", R"("1.5k")"),
                Gives("gFormatEngineering", "0,8,false,false,1,4,0", R"("0e000")"),
                Gives("gFormatEngineering", R"("-inf",8,false,false,2,99,2)", R"("-inf")"),
                Gives("gFormatEngineering", R"(-0.0,8,false,false,2,-1,2)", R"("-0")"),
                Gives("gFormatEngineeringOptions", "1500000,4", R"("1.5X")"),
                Gives("gFormatEngineeringOptions", "1500000,4,8", R"("1.5MEG")"),
                Gives("gFormatEngineeringOptions", "1500000,4,1,3,6,0,11", R"("   1.5000M      ")"),
                Gives("gFormatDistinct", R"(1.0001,1.0002,"undefined")", R"("1.0001")"),
                Gives("gFormatPlain", "0.1", R"("0.100000000000000006")"),
                Gives("gFormatFull", "1500000", R"("1.5M")"),
                Gives("gParseEngineering", R"("1meg",false)",
                      R"({"message":"","value":1000000.0,"used":4})"),
                Gives("gParseEngineering", R"("1e999",true)",
                      R"({"message":"","value":"inf","used":5})"),
                Gives("gParseEngineering", R"("x",true)",
                      R"({"message":"Not a number","value":0.0,"used":0})"),
                Gives("gParseEngineering.wide", R"("10%",false)",
                      R"({"message":"","value":0.1,"used":3})"),
                Gives("gParseEngineering.wide", "[50,107],true",
                      R"({"message":"","value":2000.0,"used":2})"),
                Gives("gParseEngineeringText", R"("1M",null)", R"({"message":"","value":0.001})"),
                Gives("gClampDigits", "99", "18"),
                Gives("gClampDigitsText", R"("x")", "4"),
                Gives("gClampPlaces", "-3", "0"),
                Gives("gClampPlacesText", R"("")", "6"),
                Gives("gNormalizeUnitScale", "7", "5"),
                Gives("gGetUnitScaleKey", "2", R"("hspice")"),
                Gives("gGetUnitScaleDisplayText", R"("si")", R"("SI")"),
                Gives("gUnitScaleToOption", "5", "11"),
            });
}

TEST(Call, FormatSettings)
{
    ExpectReplies(
        {"--digits", "4", "--scale", "engineering", "--keep-zeros", "--keep-exponents", "--si"},
        {
            Gives("gFormatEngineeringOptions", "1.5,0", R"("1.500e000")"),
            Gives("gParseEngineeringText", R"("1M",null)", R"({"message":"","value":1000000.0})"),
        });
}

TEST(Call, Paths)
{
    ExpectReplies(
        {"--rules", "plain", "--env", "X=x", "--env", "E=a=b c", "--env", "HOME=/home/u"},
        {
            Gives("gCanonicalizePath", R"("/a/$X/../%E%")", R"("\\a\\a=b c")"),
            Gives("gIsAbsolutePath", R"("$HOME")", "true"),
            Gives("gIsUnixStylePath", R"("../a")", "true"),
            Gives("gConcatenatePaths", R"("C:\\a","\\b")", R"("C:\\b")"),
            Gives("gResolvePath", R"("C:\\a","b")", R"("C:\\a\\b")"),
            Gives("gGetRelativeFileName", R"("C:\\a\\b","C:\\a\\c\\d.txt")", R"("..\\c\\d.txt")"),
            Gives("gGetFileNameWithoutPath", R"("C:x")", R"("x")"),
            Gives("gGetPathWithoutFileName", R"("C:\\x")", R"("C:\\")"),
            Gives("gHasExtension", R"("a.")", "true"),
            Gives("gGetExtension", R"("a.é")", R"("é")"),
            Gives("gSetExtension", R"("a.b\\c","d")", R"("a.b\\c.d")"),
            Gives("gEnsureExtension", R"("a.txt","dat")", R"("a.txt.dat")"),
            Gives("gGetFileTitle", R"("C:\\a.b")", R"("a")"),
            Gives("gGetPathWithoutExtension", R"("C:\\a.b")", R"("C:\\a")"),
            Gives("gAbbreviatePath", R"("C:\\aa\\bb\\d.txt",12,true)", R"("C:\\...\\d.txt")"),
            Gives("gPathsEqual", R"("A/b","a\\B")", "true"),
            Gives("gToDosPath", R"("C:/a")", R"("C:\\a")"),
            Gives("gToUnixPath", R"("a\\b")", R"("a\\b")"),
            Gives("gGetUnixEnv", R"("X")", R"("")"),
            Gives("gSetUnixEnv", R"("X","1",1)", "-1"),
            Gives("gUnsetUnixEnv", R"("X")", "-1"),
            Gives("gPutUnixEnv", R"("X=1")", "-1"),
        });
}

TEST(Call, PathsOnTheUnixSide)
{
    ExpectReplies({"--rules", "unix"},
                  {
                      Gives("gCanonicalizePath", R"("/a\\b/../$HOME")", R"("/a/$HOME")"),
                      Gives("gPathsEqual", R"("A/b","a\\B")", "false"),
                      Gives("gToUnixPath", R"("a\\b")", R"("a/b")"),
                  });
}

TEST(Call, TheDisk)
{
    ExpectReplies(
        {}, {
                Gives("gDirectoryExists", R"("/proc/self")", "true"),
                Gives("gFileExists", R"("/proc/self")", "false"),
                Gives("gFileExists", R"("/proc/self/status")", "true"),
                Gives("gIsDirectoryEmpty", R"("/proc/self")", "false"),
                Gives("gCreateDirectories", R"("/proc/self")", R"({"done":true,"errors":""})"),
                Gives("gCreateDirectories", R"("/proc/self/status/x","before")",
                      R"({"done":false,"errors":"before\nFile with the name )"
                      R"(\"/proc/self/status\" already exists.\n"})"),
                Gives("gGetFileTime", R"("/nosuch")", "-1"),
                Gives("gGetFileCheckMode", "", "0"),
                Gives("gSetFileCheckMode", "3", "null"),
                Gives("gDirectoryExists", R"("/proc/self")", "true"),
                Gives("gGetFileCheckMode", "", "-3"),
                Gives("gGetSystemErrorText", "193", R"("It is not valid Win64 application.")"),
                Gives("gAppendLastError", R"("x",193)",
                      R"({"text":"x\nIt is not valid Win64 application.","code":193})"),
                Gives("gGetDocumentsFolder", "", R"("")"),
                Gives("gIsPathLoggerSet", "", "false"),
            });
}

TEST(Call, ProgramAndFolders)
{
    const std::string sProgram = QUORVAWIZ_CLI_PATH;
    const std::string sFolder = sProgram.substr(0, sProgram.rfind('/'));
    ExpectReplies({}, {
                          Gives("gGetExecutablePath", "", '"' + sProgram + '"'),
                          Gives("gGetModulePath", "", '"' + sProgram + '"'),
                          Gives("gGetExecutableFolder", "", '"' + sFolder + '"'),
                          Gives("gGetModuleFolder", "", '"' + sFolder + '"'),
                      });
}

TEST(Call, Texts)
{
    ExpectReplies(
        {"--code-page", "1252"},
        {
            Gives("CStringU.FromBytes", R"({"hex":"61e9"},1)", R"("aé")"),
            Gives("CStringU.FromBytes", R"({"hex":"61e9"},0)", R"({"hex":"61e9"})"),
            Gives("CStringU.FromBytes", R"("aé",3)", R"("aé")"),
            Gives("CStringU.FromBytes", R"("a",4)", R"({"hex":"8061"})"),
            Gives("CStringU.FromWide", "[97,233,55357,56832]", R"("aé😀")"),
            Gives("CStringU.FromWide", "[55357]", R"({"hex":"eda0bd"})"),
            Gives("CStringU.FromWideBigEndian", "[24832]", R"("a")"),
            Gives("CStringU.FromChar", R"("é")", R"("é")"),
            Gives("CStringU.Assign", R"("old",{"hex":"61e9"},1)", R"("aé")"),
            Gives("CStringU.AppendUtf8", R"("a","é")", R"("aé")"),
            Gives("CStringU.AppendUtf8", R"("",{"hex":"8061"})", R"({"hex":"808061"})"),
            Gives("CStringU.OverwriteUtf8", R"("aé",1,"xyz")", R"("axyz")"),
            Gives("CStringU.ResizeUtf8", R"("aé",1)", R"("a")"),
            Gives("CStringU.Format", R"("%s=%s, 5%%",["é","b"])", R"("é=b, 5%")"),
            Gives("CStringU.Format", R"("none",[])", R"("none")"),
            Gives("CStringU.FromChar", "0", R"("")"),
            Gives("CStringU.Stored", R"("aé")", R"({"hex":"8061c3a9"})"),
            Gives("CStringU.Stored", R"({"hex":"8061C3A9"})", R"({"hex":"8061c3a9"})"),
            Gives("CStringU.ToUtf8", R"("aé")", R"("aé")"),
            Gives("CStringU.ToCodePage", R"("aй",1252)", R"("a?")"),
            Gives("CStringU.ToAnsi", R"("aé")", R"({"hex":"61e9"})"),
            Gives("CStringU.ToWide", R"("aé😀")", "[97,233,55357,56832]"),
            Gives("CStringU.ToWideBigEndian", R"("a")", "[24832]"),
            Gives("CStringU.IsUtf8", R"("a")", "false"),
            Gives("CStringU.GetByteLength", R"("aé")", "3"),
            Gives("CStringU.GetByteLength", R"("a\u0000z")", "3"),
            Gives("CStringU.GetCharCount", R"("aé")", "2"),
            Gives("CStringU.Characters", R"({"hex":"f861"})", "[63,97]"),
            Gives("CStringU.CharactersBack", R"("aéb")", "[98,233,97]"),
            Gives("CStringU.Next", R"("aéb",1)", R"({"index":3,"unit":98})"),
            Gives("CStringU.Next", R"("aéb",4)", R"({"index":4,"unit":0})"),
            Gives("CStringU.Previous", R"("aéb",3)", R"({"index":1,"unit":233})"),
            Gives("CStringU.Previous", R"("aéb",0)", R"({"index":0,"unit":97})"),
            Gives("CStringU.Move", R"("aéb",0,2)", R"({"index":3,"unit":98})"),
            Gives("CStringU.Move", R"("aéb",4,-2)", R"({"index":1,"unit":233})"),
            Gives("CStringU.MoveBack", R"("aéb",4,9)", R"({"index":0,"unit":97})"),
            Gives("CStringU.Left", R"("aé",1)", R"("a")"),
            Gives("CStringU.Right", R"("aé",2)", R"("é")"),
            Gives("CStringU.Mid", R"("aéb",1)", R"("éb")"),
            Gives("CStringU.Mid", R"("aéb",1,2)", R"("é")"),
            Gives("CStringU.operator+", R"("a","é")", R"("aé")"),
            Gives("CStringU.operator+=", R"("a","é")", R"("aé")"),
            Gives("CStringU.operator+=.unit", R"("a","é")", R"("aé")"),
            Gives("CStringU.operator+=.unit", R"("a",0)", R"("a")"),
            Gives("CStringU.operator==", R"("é","é")", "true"),
            Gives("CStringU.operator<", R"("b","aa")", "true"),
            Gives("CompareNoCase", R"("É","é")", "0"),
            Gives("CStringU.CompareNoCase", R"("É","é")", "0"),
            Gives("TStringLessNoCase", R"("ABC","abd")", "true"),
            Gives("CStringU.StartsWith", R"("aé","a")", "true"),
            Gives("CStringU.EndsWith", R"("aé","a")", "false"),
            Gives("CStringU.Find", R"("aébé","é")", "1"),
            Gives("CStringU.ReverseFind", R"("aébé","é")", "4"),
            Gives("CStringU.FindCharacter", R"("aéb",233)", "1"),
            Gives("CStringU.FindCharacter", R"("aéb","x")", "4"),
            Gives("CStringU.FindNoCase", R"("aéb","É")", "1"),
            Gives("CStringU.FindOneOf", R"("aéb","bé")", "1"),
            Gives("CStringU.FindLastOf", R"("aéb","bé")", "3"),
            Gives("CStringU.MakeLower", R"("AÉ")", R"("aé")"),
            Gives("CStringU.MakeUpper", R"("aé")", R"("AÉ")"),
            Gives("CStringU.Replace", R"("aba","a","é")", R"({"text":"ébé","count":2})"),
            Gives("CStringU.ReplaceNoCase", R"("aba","A","c")", R"({"text":"cbc","count":2})"),
            Gives("CStringU.TrimLeft", R"("\u2003 a ")", R"("a ")"),
            Gives("CStringU.TrimRight", R"(" a\u3000")", R"(" a")"),
            Gives("CStringU.Trim", R"(" a ")", R"("a")"),
            Gives("CStringU.StripQuotes", R"("\"a\"")", R"("a")"),
            Gives("CStringU.AddQuotes", R"("")", R"("\"\"")"),
            Gives("gDecodeUnit", R"({"hex":"c3a9"},0)", R"({"unit":233,"index":2})"),
            Gives("gIsWhiteSpace", "8203", "true"),
            Gives("gIsQuote", R"("«")", "true"),
        });
}

TEST(Call, TextFiles)
{
    ExpectReplies(
        {},
        {
            Gives(
                "TTextFile.read", R"({"hex":"efbbbf610d0a0d0a62"},0)",
                R"({"encoding":4,"length":6,"lines":["a","","b"],"line-number":4,"all":"a\n\nb\n"})"),
            Gives("TTextFile.read", R"({"hex":"6100e900"},1)",
                  R"({"encoding":2,"length":4,"lines":["aé"],"line-number":2,"all":"aé\n"})"),
            Gives("TTextFile.read", R"("",3)",
                  R"({"encoding":3,"length":0,"lines":[],"line-number":1,"all":""})"),
            Gives("TTextFile.write", R"(5,0,["a\nb"])",
                  R"({"bytes":{"hex":"fffe61000d000a006200"},"line-number":2,"error":""})"),
            Gives("TTextFile.write", R"(1,0,["a\r\n","é"])",
                  R"({"bytes":"a\r\né","line-number":2,"error":""})"),
            Gives("TTextFile.write", R"(1,32768,["a\n"])",
                  R"({"bytes":"a\n","line-number":0,"error":""})"),
        });
}

TEST(Call, TheLogTellsOnlyTheCallsLines)
{
    ExpectReplies(
        {"--log"},
        {
            {R"({"fn":"gGetFileNameWithoutPath","args":["a/é"]})",
             R"({"ok":true,"result":"é","log":["gGetFileNameWithoutPath(FullPath=a/é) returns é"]})"},
            {R"({"fn":"gIsPathLoggerSet"})", R"({"ok":true,"result":true,"log":[]})"},
            {"x", R"({"ok":false,"error":"the line isn't JSON from byte 1 on","log":[]})"},
        });
}

TEST(Call, WhatIsWrongIsTold)
{
    const std::string sPair = "gConcatenatePaths(text, text)";
    ExpectReplies(
        {},
        {
            Fails("", "the line isn't JSON from byte 1 on"),
            Fails("[]", "the line isn't a JSON object"),
            Fails("{}", R"(the member \"fn\" isn't there or isn't the name of a function)"),
            Fails(R"({"fn":1})",
                  R"(the member \"fn\" isn't there or isn't the name of a function)"),
            Fails(R"({"fn":"gIsQuote","arg":[]})",
                  R"(the call has no member \"arg\"; did you mean \"args\"?)"),
            Fails(R"({"fn":"gIsQuote","args":{}})", R"(the member \"args\" isn't a list)"),
            Fails(R"({"fn":"CStringU.left"})",
                  R"(there is no function \"CStringU.left\"; did you mean \"CStringU.Left\"?)"),
            Fails(R"({"fn":"gConcatenatePaths"})", sPair + " takes 2 arguments, not 0"),
            Fails(R"({"fn":"gFormatEngineeringOptions","args":[1]})",
                  "gFormatEngineeringOptions(number, count, [integer], [integer], [integer], "
                  "[integer], [integer]) takes 2 to 7 arguments, not 1"),
            Fails(R"({"fn":"gConcatenatePaths","args":["a",1]})",
                  sPair + R"(: argument 2 isn't a text: a string, or {\"hex\": ...})"),
            // Of two that are wrong the first is told.
            Fails(R"({"fn":"gConcatenatePaths","args":[1,2]})",
                  sPair + R"(: argument 1 isn't a text: a string, or {\"hex\": ...})"),
            Fails(R"({"fn":"gParseEngineeringText","args":[1,3]})",
                  "gParseEngineeringText(text, tribool): argument 1 isn't a text: a string, or "
                  R"({\"hex\": ...})"),
            Fails(R"({"fn":"gConcatenatePaths","args":[{"hex":"8"},"a"]})",
                  sPair +
                      R"(: argument 1 isn't a text: \"hex\" takes pairs of hexadecimal digits)"),
            Fails(R"({"fn":"gIsQuote","args":["ab"]})",
                  "gIsQuote(unit): argument 1 isn't a unit: a number from 0 to 65535, or a string "
                  "of one character"),
            Fails(R"({"fn":"gClampDigits","args":[1.5]})",
                  "gClampDigits(integer): argument 1 isn't a whole number of 32 bits"),
            Fails(R"({"fn":"gClampDigits","args":[4294967296]})",
                  "gClampDigits(integer): argument 1 isn't a whole number of 32 bits"),
            Fails(R"({"fn":"gClampDigits","args":[18446744073709551615]})",
                  "gClampDigits(integer): argument 1 isn't a whole number of 32 bits"),
            Fails(
                R"({"fn":"gFormatPlain","args":["1"]})",
                R"(gFormatPlain(number): argument 1 isn't a number, \"inf\", \"-inf\" or \"nan\")"),
            Fails(
                R"({"fn":"gGetUnitScaleKey","args":["SI"]})",
                "gGetUnitScaleKey(scale): argument 1 isn't a scale: a whole number, or one of the "
                "keys si, spice, hspice, scientific, engineering and undefined"),
            Fails(R"({"fn":"gGetCurrentDirectory","args":[0]})",
                  "gGetCurrentDirectory(flag): argument 1 isn't true or false"),
            Fails(R"({"fn":"gParseEngineeringText","args":["1",3]})",
                  "gParseEngineeringText(text, tribool): argument 2 isn't true, false or null, or "
                  "1, 0 or 2"),
            Fails(R"({"fn":"CStringU.FromBytes","args":["",5]})",
                  "CStringU.FromBytes(bytes, kind): argument 2 isn't a kind from 0 to 4"),
            Fails(R"({"fn":"TTextFile.write","args":[7,0,[]]})",
                  "TTextFile.write(encoding, count, texts): argument 1 isn't an encoding from 0 to "
                  "6"),
            Fails(R"({"fn":"TTextFile.write","args":[1,0,"a"]})",
                  "TTextFile.write(encoding, count, texts): argument 3 isn't a list of texts"),
            Fails(
                R"({"fn":"CStringU.FromWide","args":[[-1]]})",
                "CStringU.FromWide(units): argument 1 isn't units: a string, or a list of numbers "
                "from 0 to 65535"),
            Fails(R"({"fn":"CStringU.ToCodePage","args":["é",7]})", "unknown code page"),
            Fails(R"({"fn":"CStringU.Format","args":["%d",["a"]]})",
                  "a format has no other places than %s and %%"),
            Fails(R"({"fn":"CStringU.Format","args":["100%",[]]})",
                  "a format has no other places than %s and %%"),
            Fails(R"({"fn":"CStringU.Format","args":["%s",[]]})",
                  "a format has as many %s as there are texts, at most 4"),
            Gives("gIsQuote", R"("\"")", "true"),
        });
}

/// A call of gIsQuote with lists within lists. With the object that makes a depth of one more.
std::string Nested(std::size_t nLists)
{
    return R"({"fn":"gIsQuote","args":)" + std::string(nLists, '[') + std::string(nLists, ']') +
           '}';
}

TEST(Call, DeeplyNestedLinesAreRefused)
{
    const std::string sTooDeep = "the line is nested more than 100 deep";
    ExpectReplies({}, {
                          Fails(Nested(99), "gIsQuote(unit): argument 1 isn't a unit: a number "
                                            "from 0 to 65535, or a string of one character"),
                          Fails(Nested(100), sTooDeep),
                          Fails(Nested(100'000), sTooDeep),
                          Fails(R"({"fn":)" + std::string(100'000, '['), sTooDeep),
                          Gives("gIsQuote", R"("a")", "false"),
                      });
}

TEST(Call, OptionsThatCantBeRead)
{
    struct Case {
        std::vector<std::string> arguments;
        std::string sError;
    };
    const std::vector<Case> cases{
        {{"call", "--env", "X"}, "--env takes NAME=VALUE, not \"X\""},
        {{"call", "--env", "=x"}, "--env takes NAME=VALUE, not \"=x\""},
        {{"call", "--digits", "0"}, "--digits takes a number from 1 on, not \"0\""},
        {{"call", "--digits", "5x"}, "--digits takes a number from 1 on, not \"5x\""},
        {{"call", "--scale", "SI"},
         "there is no scale \"SI\"; they are si, spice, hspice, scientific and engineering"},
        {{"call", "--scale", "undefined"},
         "there is no scale \"undefined\"; they are si, spice, hspice, scientific and engineering"},
        {{"call", "x"},
         "the following argument was not expected: \"x\"; --help tells what is possible"},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gRunQuorvawiz(rCase.arguments),
                  (TProgramRun{"", "quorvawiz: " + rCase.sError + '\n', 2}));
}
TEST(Call, Store)
{
    const std::string sUnset = R"({"kind":"double","value":"uninitialized"})";
    ExpectReplies(
        {},
        {
            Gives("ParamValueToText", "1500.0", R"("1.5k")"),
            Gives("ParamValueToText", "-7", R"("-7")"),
            Gives("ParamValueToText", "true", R"("true")"),
            Gives("ParamValueToText", sUnset, R"("<uninitialized>")"),
            Gives("ParamValueToText", R"({"kind":"double","value":"nan"})", R"("NaN")"),
            Gives("ParamValueToText", R"({"kind":"double","value":"-inf"})", R"("-inf")"),
            Gives("ParamValueToText", R"({"hex":"c3a9"})", "\"\u00e9\""),
            Gives("SetParamValue", "1,2.5,0", R"({"kind":"bool","value":true})"),
            Gives("SetParamValue", "2,2.5,0", R"({"kind":"int","value":3})"),
            Gives("SetParamValue", R"(2,{"kind":"double","value":"inf"},0)",
                  R"({"kind":"int","value":2147483647})"),
            Gives("SetParamValue", "3,true,0", R"({"kind":"double","value":1.0})"),
            Gives("SetParamValue", R"(5,"a",0)", R"({"kind":"text","value":"a"})"),
            Gives("SetParamValue", "7,null,0", sUnset),
            Gives("SetParamValue", "4,null,0", R"({"kind":"int","value":0})"),
            Fails(R"({"fn":"SetParamValue","args":[1,null,0]})",
                  "boost::bad_any_cast: failed conversion using boost::any_cast"),
            Gives("gGetModelsFilePath", R"("Sim","dat")", R"("SimModels_v2021.264.dat")"),
            Gives("CompareTolerant", "1,2,1e-12", "-1"),
            Gives("CompareTolerant", "1,1.000000000001,1e-12", "0"),
            Gives("CompareTolerant", R"("uninitialized","uninitialized",1)", "1"),
            Gives("CompareTolerant", R"("nan",1,1)", "0"),
            Gives("CompareModelClassHeaders", R"({"type":"zz"},{"type":"aaa"})", "true"),
            Gives("CompareModelClassHeaders",
                  R"({"name":"a","level":2,"version":1.5},{"name":"a","level":2})", "false"),
            Fails(R"({"fn":"CompareModelClassHeaders","args":[{},{"x":1}]})",
                  "CompareModelClassHeaders(class header, class header): argument 2 isn't a class "
                  "header: its members are name, type, level, version and description"),
            Gives("TBidirectionalStringToIntMap",
                  R"([["Add","a",5],["Add","b",2],["Add","a",9],["Find","a"],["GetName",2],)"
                  R"(["GetName",5],["GetCount"]])",
                  R"({"results":[5,2,5,5,"b","",3],"index":[{"name":"a","id":5},)"
                  R"({"name":"b","id":2}],"table":["","","b"]})"),
            Fails(R"({"fn":"TBidirectionalStringToIntMap","args":[[["Add","a",1000001]]]})",
                  "TBidirectionalStringToIntMap(operations): operation 1 takes ids up to 1000000 "
                  "only"),
        });
}

} // namespace
