#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pellam::component::script {

struct Token {
  std::string text;
  bool quoted = false;
};

// Splits one script line into words and double-quoted strings ("\"", "\\", "\r", "\n", "\t"
// escapes); "#" outside a string starts a comment. Throws ScriptError on a malformed line.
std::vector<Token> tokenize(std::string_view line);

// The inverse, for printing texts: a double-quoted string with the same escapes.
std::string quote(std::string_view text);

// The text with its control characters written as the strings' escapes, or as \xHH where
// they have none, so that a script's bytes never reach a terminal raw.
std::string printable(std::string_view text);

}  // namespace pellam::component::script
