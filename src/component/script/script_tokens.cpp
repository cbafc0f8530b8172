#include "component/script/script_tokens.h"

#include <cctype>
#include <cstdio>

#include "component/script/script_error.h"

namespace pellam::component::script {

std::vector<Token> tokenize(std::string_view line) {
  std::vector<Token> tokens;
  std::size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == ' ' || c == '\t' || c == '\r') {
      ++i;
    } else if (c == '#') {
      break;
    } else if (c == '"') {
      Token token{{}, true};
      ++i;
      bool closed = false;
      while (i < line.size()) {
        const char d = line[i++];
        if (d == '"') {
          closed = true;
          break;
        }
        if (d != '\\') {
          token.text += d;
          continue;
        }
        if (i >= line.size()) break;
        switch (const char e = line[i++]) {
          case '"': token.text += '"'; break;
          case '\\': token.text += '\\'; break;
          case 'r': token.text += '\r'; break;
          case 'n': token.text += '\n'; break;
          case 't': token.text += '\t'; break;
          default: throw ScriptError{std::string("unknown escape \\") + e + " in a string"};
        }
      }
      if (!closed) throw ScriptError{"string not closed"};
      tokens.push_back(std::move(token));
    } else {
      Token token;
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r' && line[i] != '"' &&
             line[i] != '#') {
        token.text += line[i++];
      }
      tokens.push_back(std::move(token));
    }
  }
  return tokens;
}

namespace {
void appendPrintable(std::string& out, char c) {
  switch (c) {
    case '\r': out += "\\r"; return;
    case '\n': out += "\\n"; return;
    case '\t': out += "\\t"; return;
    default: break;
  }
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20 && byte != 0x7f) {
    out += c;
    return;
  }
  char hex[5];
  std::snprintf(hex, sizeof hex, "\\x%02x", byte);
  out += hex;
}
}  // namespace

std::string quote(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    appendPrintable(out, c);
  }
  return out + '"';
}

std::string printable(std::string_view text) {
  std::string out;
  for (const char c : text) appendPrintable(out, c);
  return out;
}

}  // namespace pellam::component::script
