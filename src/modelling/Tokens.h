#pragma once

#include <string>
#include <vector>

// String helpers that take apart the lines of the extrusion's list of additional
// transformations, such as Rotate(0,0.5,0). Comparisons are exact and case-sensitive;
// trimming removes blanks (spaces) at both ends.
namespace Tokens {

// The text before the first delimiter, trimmed; text keeps what follows the delimiter,
// trimmed. Without a delimiter the whole text, trimmed, is the token and text is emptied.
std::string getNextToken(std::string& text, const std::string& delimiter);
// Every character below " " or above "~" becomes a blank; the length stays.
std::string stripNonPrintable(const std::string& text);
// Every occurrence of part removed, scanning from the start.
std::string removeSubstring(const std::string& text, const std::string& part);
// The trimmed tokens of the printable, trimmed text: a,,b gives a, "" and b; "a," gives a;
// an empty or all-blank text gives none.
void tokenize(const std::string& text, const std::string& delimiter,
              std::vector<std::string>& tokens);

} // namespace Tokens
