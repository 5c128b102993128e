// The manual as it ships: its links, its pictures, and the topics that the program opens.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

fs::path Checkout() { return fs::path(TARVO_TEST_DATA).parent_path().parent_path(); }

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

// What the first group matches, at every match.
std::vector<std::string> AllMatches(const std::string& text, const std::string& pattern) {
    std::vector<std::string> found;
    const std::regex expression(pattern);
    for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) found.push_back((*it)[1]);
    return found;
}

class ReadMeTest : public testing::Test {
protected:
    std::string page = ReadText(Checkout() / "help" / "ReadMe.htm");
    std::vector<std::string> ids = AllMatches(page, " id=\"([^\"]*)\"");

    void SetUp() override { ASSERT_FALSE(ids.empty()) << "the manual was not read"; }
    bool HasTopic(const std::string& id) const { return std::find(ids.begin(), ids.end(), id) != ids.end(); }
};

TEST_F(ReadMeTest, NoTwoTopicsShareAName) {
    const std::set<std::string> distinct(ids.begin(), ids.end());
    EXPECT_EQ(distinct.size(), ids.size());
}

TEST_F(ReadMeTest, EveryLinkWithinThePageLeadsSomewhere) {
    const std::vector<std::string> links = AllMatches(page, "href=\"#([^\"]*)\"");
    EXPECT_GT(links.size(), 10u);
    for (const std::string& link : links) EXPECT_TRUE(HasTopic(link)) << link;
}

TEST_F(ReadMeTest, ThePageNeedsNothingFromTheNet) {
    for (const std::string& target : AllMatches(page, "(?:href|src)=\"([^\"]*)\""))
        EXPECT_EQ(target.find("//"), std::string::npos) << target;
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(page.find("@import"), std::string::npos);
}

TEST_F(ReadMeTest, EveryChapterIsListedInTheContents) {
    const std::vector<std::string> links = AllMatches(page, "href=\"#([^\"]*)\"");
    for (const std::string& chapter : AllMatches(page, "<h2 id=\"([^\"]*)\""))
        EXPECT_NE(std::find(links.begin(), links.end(), chapter), links.end()) << chapter;
}

// A topic in the sources is a text that is nothing but "#" and its name.
TEST_F(ReadMeTest, EveryTopicThatTheProgramOpensIsThere) {
    std::set<std::string> topics;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Checkout() / "src")) {
        if (entry.path().extension() != ".cpp") continue;
        for (const std::string& topic : AllMatches(ReadText(entry.path()), "\"#([A-Z][A-Za-z]+)\""))
            topics.insert(topic);
    }
    EXPECT_TRUE(topics.contains("Options")) << "the sources were not searched";
    for (const std::string& topic : topics) EXPECT_TRUE(HasTopic(topic)) << topic;
}

// The dialogs of the resource scripts that have a help button.
std::set<std::string> DialogsWithHelp() {
    std::set<std::string> dialogs;
    for (const fs::directory_entry& entry : fs::directory_iterator(Checkout() / "res")) {
        if (entry.path().extension() != ".rc") continue;
        std::string dialog;
        for (const std::string& word :
             AllMatches(ReadText(entry.path()), "(IDD_[A-Z_]+ DIALOGEX|PUSHBUTTON \"&Help\")")) {
            if (word.starts_with("IDD_"))
                dialog = word.substr(0, word.find(' '));
            else
                dialogs.insert(dialog);
        }
    }
    return dialogs;
}

// The topic of each dialog stands in the lines behind its resource, or in the file that opens it.
TEST_F(ReadMeTest, EveryDialogWithAHelpButtonHasATopic) {
    std::set<std::string> dialogs = DialogsWithHelp();
    EXPECT_GT(dialogs.size(), 20u) << "the resource scripts were not searched";
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Checkout() / "src")) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string source = ReadText(entry.path());
        for (const std::string& opened : AllMatches(source, "(IDD_[A-Z_]+)\\b")) {
            if (!dialogs.contains(opened)) continue;
            const std::vector<std::string> topics = AllMatches(source, "\"#([A-Z][A-Za-z]+)\"");
            EXPECT_FALSE(topics.empty()) << opened << " in " << entry.path();
            // One that is run by the common editor names its topic in the next line.
            const std::string resource = "editor.resource = " + opened + ";";
            if (source.find(resource) != std::string::npos) {
                EXPECT_EQ(AllMatches(source, resource + "\\s*editor\\.(topic) = ").size(), 1u) << opened;
            }
            dialogs.erase(opened);
        }
    }
    for (const std::string& dialog : dialogs) ADD_FAILURE() << dialog << " is opened nowhere";
}

// How many dialogs each topic serves: those that stand beside it in the sources, or the one whose file names it.
std::map<std::string, size_t> DialogsOfTopics() {
    std::map<std::string, size_t> topics;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Checkout() / "src")) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string source = ReadText(entry.path());
        const std::vector<std::string> beside =
            AllMatches(source, "IDD_[A-Z_]+[,;]\\s*(?:editor\\.topic = )?\"#([A-Z][A-Za-z]+)\"");
        for (const std::string& topic : beside) ++topics[topic];
        const std::vector<std::string> named = AllMatches(source, "\"#([A-Z][A-Za-z]+)\"");
        for (const std::string& topic : std::set<std::string>(named.begin(), named.end())) {
            if (std::find(beside.begin(), beside.end(), topic) == beside.end()) ++topics[topic];
        }
    }
    return topics;
}

// What the page says about a topic: from its heading to the next one of the same or a higher rank.
std::string SectionOf(const std::string& page, const std::string& topic) {
    const size_t name = page.find(" id=\"" + topic + "\"");
    if (name == std::string::npos || name < 3) return {};
    const char rank = page[name - 1];
    size_t end = name;
    do end = page.find("<h", end + 1);
    while (end != std::string::npos && !(page[end + 2] >= '1' && page[end + 2] <= rank));
    return page.substr(name, end - name);
}

TEST_F(ReadMeTest, EveryTopicOfADialogHasAPictureForEachDialogThatItServes) {
    const std::map<std::string, size_t> topics = DialogsOfTopics();
    ASSERT_TRUE(topics.contains("Navaids")) << "the sources were not searched";
    EXPECT_GE(topics.at("Navaids"), 7u);
    EXPECT_GE(topics.at("Runways"), 2u);
    EXPECT_TRUE(topics.contains("RunwayLights") && topics.contains("FaultFinder"));
    for (const auto& [topic, dialogs] : topics)
        EXPECT_GE(AllMatches(SectionOf(page, topic), "(<img )").size(), dialogs) << topic;
}

// Width and height of a PNG file, from its first chunk; 0 for anything else.
struct PictureSize {
    uint32_t width = 0, height = 0;
};
PictureSize SizeOfPng(const fs::path& path) {
    const std::string bytes = ReadText(path);
    if (bytes.size() < 24 || bytes.substr(1, 3) != "PNG") return {};
    const auto number = [&](size_t at) {
        uint32_t value = 0;
        for (size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<uint8_t>(bytes[at + i]);
        return value;
    };
    return { number(16), number(20) };
}

TEST_F(ReadMeTest, EveryPictureIsThereInTheSizeThatThePageKeepsFreeForIt) {
    const std::vector<std::string> pictures = AllMatches(page, "(<img [^>]*>)");
    for (const std::string& picture : pictures) {
        const std::vector<std::string> file = AllMatches(picture, "src=\"([^\"]*)\"");
        ASSERT_EQ(file.size(), 1u) << picture;
        const PictureSize size = SizeOfPng(Checkout() / "help" / file[0]);
        EXPECT_GT(size.width, 0u) << file[0];
        EXPECT_NE(picture.find(" width=\"" + std::to_string(size.width) + "\""), std::string::npos) << picture;
        EXPECT_NE(picture.find(" height=\"" + std::to_string(size.height) + "\""), std::string::npos) << picture;
        EXPECT_EQ(AllMatches(picture, " alt=\"([^\"]+)\"").size(), 1u) << "no words for " << file[0];
    }
}

TEST_F(ReadMeTest, NoPictureIsShippedUnused) {
    for (const fs::directory_entry& entry : fs::directory_iterator(Checkout() / "help")) {
        if (entry.path().extension() != ".png") continue;
        EXPECT_NE(page.find("\"" + entry.path().filename().string() + "\""), std::string::npos) << entry.path();
    }
}

TEST_F(ReadMeTest, TheVersionIsThatOfTheProgram) {
    const std::vector<std::string> program =
        AllMatches(ReadText(Checkout() / "res" / "Tarvo.rc"), "\"ProductVersion\", \"([0-9.]+)\"");
    ASSERT_EQ(program.size(), 1u);
    EXPECT_EQ(AllMatches(page, "<p>Version ([0-9.]+)\\. "), program);
}

std::string Replaced(const std::string& text, const std::string& from, const std::string& to) {
    std::string result;
    size_t start = 0;
    for (size_t at; (at = text.find(from, start)) != std::string::npos; start = at + from.size())
        result.append(text, start, at - start).append(to);
    return result.append(text, start);
}

// Blanks and line ends as one blank.
std::string Squeezed(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
        if (!isBlank)
            result += c;
        else if (!result.ends_with(' '))
            result += ' ';
    }
    return result;
}

// What the sources and their tests tell users: literals that stand side by side joined, their line ends as blanks.
std::string TextsOfTheProgram() {
    std::string texts;
    for (const char* folder : { "src", "tests" }) {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Checkout() / folder)) {
            if (entry.path().extension() != ".cpp" || entry.path().filename() == "ReadMeTest.cpp") continue;
            texts += Replaced(Replaced(Squeezed(ReadText(entry.path())), "\" \"", ""), "\\n", " ");
        }
    }
    return texts;
}

// Messages are quoted up to what differs each time, which is given as dots. One is a word of Windows.
TEST_F(ReadMeTest, TheMessagesThatItExplainsAreThoseOfTheProgram) {
    const std::string texts = TextsOfTheProgram(), prefix = "ERROR: ", ofWindows = "Before you can perform";
    size_t seen = 0;
    for (const std::string& cell : AllMatches(Squeezed(SectionOf(page, "Troubleshooting")), "<tr><td>(.*?)</td>")) {
        for (std::string quote : AllMatches(cell, "\"([^\"]*)\"")) {
            if (quote.starts_with(ofWindows)) continue;
            if (quote.starts_with(prefix)) quote.erase(0, prefix.size());
            for (const std::string& part : AllMatches(quote + "...", " ?(.+?) ?\\.\\.\\.")) {
                EXPECT_NE(texts.find(part), std::string::npos) << part;
                ++seen;
            }
        }
    }
    EXPECT_GT(seen, 20u) << "the messages were not found";
}

// Every element that must be closed is, and in the right order.
TEST_F(ReadMeTest, TheTagsNest) {
    const std::set<std::string> single = { "!DOCTYPE", "meta", "img", "br", "hr", "link", "col" };
    std::vector<std::string> open;
    for (const std::string& tag : AllMatches(page, "<(/?[!A-Za-z][A-Za-z0-9]*)")) {
        if (single.contains(tag)) continue;
        if (tag[0] != '/') {
            open.push_back(tag);
            continue;
        }
        ASSERT_FALSE(open.empty()) << tag;
        ASSERT_EQ(open.back(), tag.substr(1));
        open.pop_back();
    }
    EXPECT_TRUE(open.empty());
}

TEST_F(ReadMeTest, NoCharacterNeedsMoreThanTheEncodingItNames) {
    EXPECT_NE(page.find("<meta charset=\"utf-8\">"), std::string::npos);
    EXPECT_TRUE(std::all_of(page.begin(), page.end(), [](char c) { return static_cast<uint8_t>(c) < 0x80; }))
        << "beyond ASCII the page uses entities";
}

}  // namespace
