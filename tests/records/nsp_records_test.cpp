#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/list_text.h"
#include "request/records/nsp_records.h"

TEST(ListText, EmptyListGivesBrackets)
{
    std::string text;
    AppendListText(text, {});
    EXPECT_EQ(text, "[]");
}

TEST(ListText, ItemsAreQuotedAndJoinedWithCommas)
{
    std::string text;
    AppendListText(text, {"/Photo", "/Drive/a b"});
    EXPECT_EQ(text, R"(["/Photo","/Drive/a b"])");
}

TEST(ListText, PathWithADoubleQuoteProducesBrokenText)
{
    std::string text;
    AppendListText(text, {R"(my"file)"});
    EXPECT_EQ(text, R"(["my"file"])");
    Json::Value parsed;
    Json::CharReaderBuilder builder;
    std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    EXPECT_FALSE(reader->parse(text.data(), text.data() + text.size(), &parsed, nullptr));
}

TEST(ListText, SecondCallOnFinishedTextAppendsAfterTheBracket)
{
    std::string text;
    AppendListText(text, {"a"});
    AppendListText(text, {"b"});
    EXPECT_EQ(text, R"(["a"],"b"])");
}

TEST(ListText, OpenBracketTakesNoLeadingComma)
{
    std::string text = "[";
    AppendListText(text, {"x"});
    EXPECT_EQ(text, R"(["x"])");
}

TEST(NspFiles, EmptyCursorHasNoCursorPartAndNoTrailingAmpersand)
{
    NspFiles request("tok", {"/Recorder"}, "");
    request.nsp_svc = NspFiles::kServiceName;
    EXPECT_EQ(request.ToFormString(),
              "nsp_svc=nsp.vfs.queryFile&access_token=tok&paths=%5b%22%2fRecorder%22%5d");
}

TEST(NspFiles, CursorIsAppendedWithoutItsUnderscore)
{
    NspFiles request("tok", {"/Recorder"}, "c:1/2");
    request.nsp_svc = NspFiles::kServiceName;
    EXPECT_EQ(request.ToFormString(),
              "nsp_svc=nsp.vfs.queryFile&access_token=tok&paths=%5b%22%2fRecorder%22%5d&cursor=c%3a1%2f2");
}

TEST(NspFiles, ConstructorFillsTokenCursorAndPathsOnly)
{
    NspFiles request("tok", {"/a", "/b"}, "7");
    EXPECT_EQ(request.nsp_svc, "");
    EXPECT_EQ(request.access_token, "tok");
    EXPECT_EQ(request.cursor, "7");
    EXPECT_EQ(request.paths, R"(["/a","/b"])");
}

TEST(NspFiles, JsonKeyOfTheCursorHasALeadingUnderscore)
{
    NspFiles request("tok", {"/a"}, "7");
    request.nsp_svc = NspFiles::kServiceName;
    EXPECT_EQ(request.ToJsonString(),
              R"({"_cursor":"7","access_token":"tok","nsp_svc":"nsp.vfs.queryFile","paths":"[\"/a\"]"})");
    NspFiles reread;
    EXPECT_EQ(reread.FromJson(request.ToJson()), 0);
    EXPECT_EQ(reread.cursor, "7");
    EXPECT_EQ(reread.FromJson(JsonOf(R"({"nsp_svc":"s","paths":"[]","cursor":"7","access_token":"t"})")), -1);
    EXPECT_EQ(reread.cursor, "");
}

TEST(NspFolders, FormMatchesTheFileQuery)
{
    NspFolders request("a token", {"/Photo", "/Video"}, "");
    request.nsp_svc = NspFolders::kServiceName;
    EXPECT_EQ(
        request.ToFormString(),
        "nsp_svc=nsp.vfs.queryFolder&access_token=a%20token&paths=%5b%22%2fPhoto%22%2c%22%2fVideo%22%5d");
}

TEST(NspDelFiles, NoFilesSendsTheEncodedEmptyList)
{
    NspDelFiles request("tok", {});
    request.nsp_svc = NspDelFiles::kServiceName;
    EXPECT_EQ(request.files, "[]");
    EXPECT_FALSE(request.reserve);
    EXPECT_EQ(request.ToFormString(), "nsp_svc=nsp.vfs.rmfile&access_token=tok&files=%5b%5d&reserve=False");
}

TEST(NspDelFiles, ReserveIsCapitalisedInTheFormAndBooleanInJson)
{
    NspDelFiles request("tok", {"/x"});
    request.nsp_svc = NspDelFiles::kServiceName;
    request.reserve = true;
    EXPECT_EQ(request.ToFormString(),
              "nsp_svc=nsp.vfs.rmfile&access_token=tok&files=%5b%22%2fx%22%5d&reserve=True");
    EXPECT_EQ(request.ToJsonString(),
              R"({"access_token":"tok","files":"[\"/x\"]","nsp_svc":"nsp.vfs.rmfile","reserve":true})");
}

TEST(NspDelFiles, ChecksTokenBeforeFiles)
{
    NspDelFiles request;
    EXPECT_EQ(request.FromJson(JsonOf(R"({"nsp_svc":"s","files":"[]","reserve":false})")), -1);
    EXPECT_EQ(request.FromJson(JsonOf(R"({"nsp_svc":"s","files":"[]","reserve":true,"access_token":"t"})")),
              0);
    EXPECT_TRUE(request.reserve);
}

TEST(NspGetAttr, FormListsFieldsBeforeFiles)
{
    NspGetAttr request("tok", {"/a"}, {"size", "fileCount"});
    request.nsp_svc = NspGetAttr::kServiceName;
    EXPECT_EQ(request.fields, R"(["size","fileCount"])");
    EXPECT_EQ(request.files, R"(["/a"])");
    EXPECT_EQ(request.ToFormString(),
              "nsp_svc=nsp.vfs.getattr&access_token=tok&fields=%5b%22size%22%2c%22fileCount%22%5d"
              "&files=%5b%22%2fa%22%5d");
}

TEST(NspGetAttr, ReadsFieldsAndFilesAsStyledText)
{
    NspGetAttr request;
    EXPECT_EQ(request.FromJson(JsonOf(R"({"nsp_svc":"s","access_token":"t","fields":["size"],"files":"f"})")),
              0);
    EXPECT_EQ(request.fields, "[\n\t\"size\"\n]\n");
    EXPECT_EQ(request.files, "\"f\"\n");
}

TEST(FieldsInfo, FileCountOfLettersReadsZero)
{
    const auto record = ReadReply<FieldsInfo>(R"({"name":"n","fileCount":"many"})");
    EXPECT_EQ(record->fileCount, 0);
    EXPECT_EQ(record->name, "n");
}

TEST(FieldsInfo, FileCountAcceptsANumberAndANumberAsText)
{
    EXPECT_EQ(ReadReply<FieldsInfo>(R"({"fileCount":12})")->fileCount, 12);
    EXPECT_EQ(ReadReply<FieldsInfo>(R"({"fileCount":"34"})")->fileCount, 34);
}

TEST(FieldsInfo, WritesFileCountAsANumber)
{
    FieldsInfo record;
    record.name = "Photo";
    record.fileCount = 5;
    EXPECT_EQ(record.ToJsonString(), R"({"fileCount":5,"name":"Photo","size":"","space":"","type":""})");
}

TEST(FolderOrFilesInfo, WithoutSslUrlReturnsZero)
{
    FolderOrFilesInfo record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"accessTime":"1","createTime":"2","modifyTime":"3","name":"n",)"
                                     R"("type":"file","size":"4"})")),
              0);
    EXPECT_EQ(record.sslUrl, "");
    EXPECT_EQ(record.size, "4");
}

TEST(FolderOrFilesInfo, WithoutSizeReturnsMinusOne)
{
    FolderOrFilesInfo record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"accessTime":"1","createTime":"2","modifyTime":"3","name":"n",)"
                                     R"("type":"file","sslUrl":"https://x"})")),
              -1);
    EXPECT_EQ(record.sslUrl, "https://x");
}

TEST(NSPFilesResponse, EmptyObjectHasNullLists)
{
    NSPFilesResponse record;
    EXPECT_EQ(record.FromJson(JsonOf("{}")), -1);
    EXPECT_EQ(record.fileList, nullptr);
    EXPECT_EQ(record.failList, nullptr);
    EXPECT_EQ(record.cursor, "");
}

TEST(NSPFilesResponse, ReadsOnlyTheListsThatArePresent)
{
    const auto record = ReadReply<NSPFilesResponse>(
        R"({"cursor":"next","fileList":[{"name":"a.m4a","size":2048},{"name":"b.m4a","size":"10"}]})");
    EXPECT_EQ(record->cursor, "next");
    ASSERT_NE(record->fileList, nullptr);
    ASSERT_EQ(record->fileList->size(), 2u);
    EXPECT_EQ((*record->fileList)[0]->name, "a.m4a");
    EXPECT_EQ((*record->fileList)[0]->size, "2048");
    EXPECT_EQ((*record->fileList)[1]->size, "10");
    EXPECT_EQ(record->failList, nullptr);
}

TEST(NSPFilesResponse, NullListsAreWrittenAsNull)
{
    NSPFilesResponse record;
    record.cursor = "c";
    EXPECT_EQ(record.ToJsonString(), R"({"cursor":"c","failList":null,"fileList":null})");
}

TEST(NSPFoldersResponse, EmptyObjectHasNullLists)
{
    NSPFoldersResponse record;
    record.FromJson(JsonOf("{}"));
    EXPECT_EQ(record.successList, nullptr);
    EXPECT_EQ(record.failList, nullptr);
}

TEST(NSPFoldersResponse, NullListIsWrittenAsNullAndASetListAsAnArray)
{
    NSPFoldersResponse record;
    record.failList = std::make_shared<std::vector<std::shared_ptr<NspErrorInfo>>>();
    EXPECT_EQ(record.ToJsonString(), R"({"failList":[],"successList":null})");
}

TEST(NSPFoldersResponse, ReadsFolderTotalsAndFailures)
{
    const auto record = ReadReply<NSPFoldersResponse>(
        R"({"successList":[{"name":"/Photo","type":"folder","space":"100","size":"90","fileCount":"3"}],)"
        R"("failList":[{"errCode":31000,"errMsg":"no such folder","name":"/Old"}]})");
    ASSERT_NE(record->successList, nullptr);
    ASSERT_EQ(record->successList->size(), 1u);
    const FieldsInfo& folder = *(*record->successList)[0];
    EXPECT_EQ(folder.name, "/Photo");
    EXPECT_EQ(folder.type, "folder");
    EXPECT_EQ(folder.space, "100");
    EXPECT_EQ(folder.size, "90");
    EXPECT_EQ(folder.fileCount, 3);
    ASSERT_NE(record->failList, nullptr);
    ASSERT_EQ(record->failList->size(), 1u);
    EXPECT_EQ((*record->failList)[0]->errCode, 31000);
    EXPECT_EQ((*record->failList)[0]->errMsg, "no such folder");
    EXPECT_EQ((*record->failList)[0]->name, "/Old");
}

TEST(NSPResponse, ReadsSuccessesAndFailuresByValue)
{
    const auto record = ReadReply<NSPResponse>(
        R"({"successList":[{"name":"/a"}],"failList":[{"errCode":1,"errMsg":"m","name":"/b"}]})");
    ASSERT_EQ(record->successList.size(), 1u);
    EXPECT_EQ(record->successList[0].name, "/a");
    ASSERT_EQ(record->failList.size(), 1u);
    EXPECT_EQ(record->failList[0].errCode, 1);
}

TEST(UpLoadFiles, ChecksClientIpThatItHasNoFieldFor)
{
    UpLoadFiles record;
    const char* withoutClientIp = R"({"cmd":"c","host":"h","mapUrlHeaders":{"a":"1"},"mapUrlParams":{"p":2},)"
                                  R"("method":"PUT","objectId":"o"})";
    EXPECT_EQ(record.FromJson(JsonOf(withoutClientIp)), -1);
    EXPECT_EQ(record.objectId, "o");
    EXPECT_EQ(record.mapUrlParams.at("p"), "2");
    UpLoadFiles withIp;
    EXPECT_EQ(withIp.FromJson(JsonOf(R"({"cmd":"c","host":"h","mapUrlHeaders":{},"mapUrlParams":{},)"
                                     R"("method":"PUT","clientIp":"1.2.3.4","objectId":"o"})")),
              0);
}

TEST(QueryAlbumInfo, WritesAlbumTypesAsAnArray)
{
    QueryAlbumInfo record;
    record.cmd = QueryAlbumInfo::kCommand;
    record.albumType = {"0", "1"};
    record.maxNum = 100;
    EXPECT_EQ(
        record.ToJsonString(),
        R"({"albumId":"","albumType":["0","1"],"cmd":"cloudphoto.album.query","cursor":"","maxNum":100})");
}
