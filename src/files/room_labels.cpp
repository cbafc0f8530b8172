#include "files/room_labels.h"

#include <charconv>
#include <sstream>
#include <vector>

namespace pellam::files {

namespace {

std::string escaped(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '\t': out += "\\t"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      default: out += c;
    }
  }
  return out;
}

std::optional<std::string> unescaped(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      out += text[i];
      continue;
    }
    if (++i == text.size()) return std::nullopt;
    switch (text[i]) {
      case '\\': out += '\\'; break;
      case 't': out += '\t'; break;
      case 'n': out += '\n'; break;
      case 'r': out += '\r'; break;
      default: return std::nullopt;
    }
  }
  return out;
}

std::optional<int> number(const std::string& field, int last) {
  int n = -1;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), n);
  if (error != std::errc() || end != field.data() + field.size() || n < 0 || n > last) return std::nullopt;
  return n;
}

std::vector<std::string> fields(const std::string& line) {
  std::vector<std::string> out(1);
  for (char c : line) {
    if (c == '\t') {
      out.emplace_back();
    } else {
      out.back() += c;
    }
  }
  return out;
}

// Reads one line into the table; false when it is not a line LabelsText writes.
bool readLine(const std::string& line, job::RoomGroupNames& names) {
  const std::vector<std::string> f = fields(line);
  const auto text = unescaped(f.back());
  const auto index = f.size() >= 3 ? number(f[1], static_cast<int>(names.names.size()) - 1) : std::nullopt;
  if (!text || !index) return false;
  job::RoomGroupName& record = names.names[static_cast<std::size_t>(*index)];
  if (f.size() == 3 && f[0] == "room") {
    record.RoomLabel = *text;
  } else if (f.size() == 3 && f[0] == "group") {
    record.GroupLabel = *text;
  } else if (f.size() == 4 && f[0] == "name") {
    const auto value = number(f[2], 32767);
    if (!value) return false;
    record.RoomName = *text;
    record.RoomValue = static_cast<std::int16_t>(*value);
  } else {
    return false;
  }
  return true;
}

}  // namespace

std::string LabelsText(const job::RoomGroupNames& names) {
  std::ostringstream out;
  for (std::size_t i = 0; i < names.names.size(); ++i) {
    const job::RoomGroupName& r = names.names[i];
    if (!r.RoomLabel.empty()) out << "room\t" << i << '\t' << escaped(r.RoomLabel) << '\n';
    if (!r.GroupLabel.empty()) out << "group\t" << i << '\t' << escaped(r.GroupLabel) << '\n';
    if (!r.RoomName.empty() || r.RoomValue != 0) {
      out << "name\t" << i << '\t' << r.RoomValue << '\t' << escaped(r.RoomName) << '\n';
    }
  }
  return out.str();
}

ReadLabels ParseLabels(const std::string& text) {
  ReadLabels read;
  std::istringstream in(text);
  int lineNumber = 0;
  for (std::string line; std::getline(in, line);) {
    ++lineNumber;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    if (!readLine(line, read.names) && read.badLine == 0) read.badLine = lineNumber;
  }
  return read;
}

}  // namespace pellam::files
