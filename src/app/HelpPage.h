// HelpPage.h - the manual, ReadMe.htm in the program folder, and how a browser is sent to one of its topics.
#pragma once

#include <string>
#include <string_view>

namespace app {

std::string HelpFile(const std::string& programFolder);

// The file: URL of a full path of Windows, with the topic as its fragment. The topic may begin with its "#"; "" is the
// top of the page. The URL holds nothing that a command line would have to quote.
std::string FileUrl(std::string_view path, std::string_view topic);

// The command line that opens the URL, from the command that a browser registered: the URL takes the place of "%1", or
// follows the command when that has no place for it. "" for an empty command.
std::string BrowserCommand(std::string_view command, std::string_view url);

// Opens the page at a topic such as "#Options": with the browser for web addresses, else with the program for pages. The
// shell opens files but loses the topic, so it comes last. Nothing is reported when all fail, or there is no page.
void OpenHelp(std::string_view topic);

}  // namespace app
