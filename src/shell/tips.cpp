#include "shell/tips.h"

#include <array>

namespace
{
constexpr std::array tips{
    "Welcome to Tagwrighter - your tool for easily creating websites with maximum productivity and efficiency. To "
    "begin, "
    "choose an option and then click OK.",
    "Learn how to develop websites with the tutorial chapters. Help also contains comprehensive information on using "
    "Tagwrighter as well as full HTML and CSS code references.",
    "Webpages are programmed using HTML. HTML consists of various instructions (called elements) for the layout of the "
    "webpage. These are defined between two angle-brackets.",
    "Pressing the F1 key when the cursor is over a HTML element will open the relevant topic in the Online Reference "
    "Guide.",
    "Most of the common HTML elements found in webpages can be added from the Insert menu.",
    "You can switch between the split-screen live previewing and editing mode and full-screen mode from the View menu.",
    "You don't need to save before you preview your page in the browser. Just choose Options from the Tools menu, and "
    "click the Files tab for more information.",
    "You can launch your web browser to a hyperlink in your document. Simply hold down the Ctrl key before clicking "
    "the "
    "link.",
    "Tagwrighter supports the latest version of HTML and CSS.",
    "If you are working with many files, the Site Project function gives you quick access to them.",
    "Most websites consist of many files. Site Projects help you manage these files quickly and efficiently.",
    "The document selector at the bottom of the main window allows you to quickly move between all open documents.",
    "Choose Preview from the File menu to launch your web browser and see how your website will look once it is on the "
    "Internet.",
    "The Language Reference guide contains information on HTML and CSS2; and is an invaluable resource for beginners "
    "and "
    "experts alike.",
    "The pop-up code and syntax windows help you quickly choose the right code while you type.",
    "The Code bar on the left side of the main window lists a hierarchical overview of HTML. You can quickly drag code "
    "into your open documents.",
    "You can choose to switch off word-wrapping in your documents from the View menu. This allows you to see each "
    "paragraph on a line-by-line basis.",
    "The Address Bar allows you to quickly launch your web browser to a URL from within the program.",
    "Visually create tables by clicking on the table button on the toolbar.",
    "Wizards help you to do many complex or time consuming tasks.",
    "Indent code segments by pressing the TAB key. You can also select and indent many lines of code at once. To "
    "outdent "
    "code hold down SHIFT and press TAB.",
    "You can quickly navigate through HTML elements by pressing the F11 and F12 keys.",
    "To check your code for errors, choose Check Syntax from the Tools menu.",
    "On some website servers file names are case sensitive. Make sure that all hyperlinks use the correct upper and "
    "lower "
    "case.",
    "The New command of the File menu lists templates to begin a page from, and shows what is in each of them.",
    "To use a page as a template later, save it as a Tagwrighter Template in your templates folder.",
    "A combined template keeps a page together with its pictures and style sheets in one file.",
    "Choose Text Files - No Tags when you save a document to keep its text without the HTML.",
    "The Print Preview command of the File menu shows how your source will look on paper.",
    "Automatic saving can be switched on in the Options, on the General page.",
    "The font of the source, the width of tabs and the program's colours are behind the More button of the Options.",
    "Code that you need often can be kept in the Code Library, from where it is put into any page.",
};
} // namespace

std::optional<QString> tipOfTheDay(int number)
{
    if (number < 1 || number > static_cast<int>(tips.size()))
        return std::nullopt;
    return QString::fromLatin1(tips[static_cast<std::size_t>(number - 1)]);
}
