#include "tools/job_diff.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <tuple>
#include <vector>

#include "component/job_files.h"
#include "component/job_listing.h"
#include "component/unattended_session.h"
#include "image/memory_map.h"
#include "image/regions.h"

namespace pellam::tools {

namespace {

// A listed line and the line it stands under ("" for a line of its own).
struct Entry {
  std::string parent;
  std::string line;
  bool operator<(const Entry& o) const { return std::tie(parent, line) < std::tie(o.parent, o.line); }
  bool operator==(const Entry& o) const = default;
};

// `pellam show`'s listing cut into the board summary and the tables under their headings.
struct Listing {
  std::vector<std::string> board;
  std::vector<std::pair<std::string, std::vector<Entry>>> tables;
};

std::string trimmed(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

Listing listing(std::span<const std::uint8_t> bytes) {
  std::ostringstream messages;
  component::UnattendedSession session(messages);
  component::OpenImageBytes(*session, bytes);
  std::istringstream text(component::listJob(*session));
  Listing l;
  bool inBoard = true;
  std::string parent;
  for (std::string line; std::getline(text, line);) {
    if (line.empty()) {
      inBoard = false;
    } else if (inBoard) {
      l.board.push_back(trimmed(line));
    } else if (!line.starts_with(" ")) {
      l.tables.push_back({line, {}});
    } else if (line.starts_with("    ")) {
      l.tables.back().second.push_back({parent, line.substr(4)});
    } else {
      parent = line.substr(2);
      l.tables.back().second.push_back({"", parent});
    }
  }
  return l;
}

// Entries of `from` that `other` lacks, counted as a multiset, in listing order.
std::vector<Entry> missing(const std::vector<Entry>& from, const std::vector<Entry>& other) {
  std::map<Entry, int> left;
  for (const Entry& e : other) ++left[e];
  std::vector<Entry> out;
  for (const Entry& e : from) {
    if (left[e] > 0) {
      --left[e];
    } else {
      out.push_back(e);
    }
  }
  return out;
}

// Changes are grouped under the line that heads them: a heading line that changed itself is
// shown with its sign, one that did not is shown once as the children's context.
std::string tableDiff(const std::vector<Entry>& a, const std::vector<Entry>& b) {
  const std::vector<Entry> removed = missing(a, b), added = missing(b, a);
  auto keyOf = [](const Entry& e) { return e.parent.empty() ? e.line : e.parent; };
  std::vector<std::string> keys;
  for (const auto* changes : {&removed, &added}) {
    for (const Entry& e : *changes) {
      if (std::find(keys.begin(), keys.end(), keyOf(e)) == keys.end()) keys.push_back(keyOf(e));
    }
  }
  std::string out;
  for (const std::string& key : keys) {
    std::string lines;
    bool headed = false;
    for (const auto& [changes, sign] : {std::pair{&removed, '-'}, std::pair{&added, '+'}}) {
      for (const Entry& e : *changes) {
        if (keyOf(e) != key) continue;
        headed = headed || e.parent.empty();
        lines += std::string(1, sign) + (e.parent.empty() ? " " : "   ") + e.line + "\n";
      }
    }
    out += (headed ? "" : "  " + key + "\n") + lines;
  }
  return out;
}

// "Name: value" lines by their name; a line without a value is there or not.
std::string boardDiff(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  auto fields = [](const std::vector<std::string>& lines) {
    std::vector<std::pair<std::string, std::string>> f;
    for (const std::string& line : lines) {
      const auto colon = line.find(": ");
      f.push_back(colon == std::string::npos ? std::pair{line, std::string("\x01")} : std::pair{line.substr(0, colon), line.substr(colon + 2)});
    }
    return f;
  };
  const auto fa = fields(a), fb = fields(b);
  auto find = [](const auto& f, const std::string& name) {
    return std::find_if(f.begin(), f.end(), [&](const auto& p) { return p.first == name; });
  };
  std::string out;
  for (const auto& [name, value] : fa) {
    const auto other = find(fb, name);
    if (other == fb.end()) {
      out += "- " + (value == "\x01" ? name : name + ": " + value) + "\n";
    } else if (other->second != value) {
      out += name + ": " + value + " -> " + other->second + "\n";
    }
  }
  for (const auto& [name, value] : fb) {
    if (find(fa, name) == fa.end()) out += "+ " + (value == "\x01" ? name : name + ": " + value) + "\n";
  }
  return out;
}

std::string byteDiff(std::span<const std::uint8_t> a, std::span<const std::uint8_t> b) {
  std::string out;
  const int n = image::map::kZpdSize;
  for (int at = 0; at < n;) {
    if (a[static_cast<std::size_t>(at)] == b[static_cast<std::size_t>(at)]) {
      ++at;
      continue;
    }
    const std::string region = image::regionName(at);
    int last = at;
    while (last + 1 < n && a[static_cast<std::size_t>(last + 1)] != b[static_cast<std::size_t>(last + 1)] &&
           image::regionName(last + 1) == region) {
      ++last;
    }
    out += std::to_string(at) + (last > at ? ".." + std::to_string(last) : "") + " " + region + ": ";
    out += last > at ? std::to_string(last - at + 1) + " bytes\n"
                     : std::to_string(a[static_cast<std::size_t>(at)]) + " -> " + std::to_string(b[static_cast<std::size_t>(at)]) + "\n";
    at = last + 1;
  }
  return out;
}

}  // namespace

std::string diffJobs(std::span<const std::uint8_t> a, std::span<const std::uint8_t> b, bool bytes) {
  if (std::equal(a.begin(), a.end(), b.begin(), b.end())) return {};
  const Listing la = listing(a), lb = listing(b);
  std::string out;
  if (const std::string board = boardDiff(la.board, lb.board); !board.empty()) out += "Board setup:\n" + board;
  // The same mode lists the same headings; another mode's tables are all added or removed.
  std::vector<std::string> titles;
  for (const Listing* l : {&la, &lb}) {
    for (const auto& [title, entries] : l->tables) {
      if (std::find(titles.begin(), titles.end(), title) == titles.end()) titles.push_back(title);
    }
  }
  auto entriesOf = [](const Listing& l, const std::string& title) {
    const auto found = std::find_if(l.tables.begin(), l.tables.end(), [&](const auto& t) { return t.first == title; });
    return found == l.tables.end() ? std::vector<Entry>{} : found->second;
  };
  for (const std::string& title : titles) {
    if (const std::string table = tableDiff(entriesOf(la, title), entriesOf(lb, title)); !table.empty()) out += title + "\n" + table;
  }
  const std::string differing = byteDiff(a, b);
  if (out.empty() && !bytes) out = "The tables are the same; bytes differ (--bytes lists them).\n";
  if (bytes) out += "Bytes:\n" + differing;
  return out;
}

}  // namespace pellam::tools
