#include "files/replace_files.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "files/durable_file.h"
#include "files/job_paths.h"

namespace pellam::files {

namespace {

namespace fs = std::filesystem;

// Beside each target while a save runs: the new file, then the old one until the save ends.
constexpr const char* kNewSuffix = ".pellam-new";
constexpr const char* kOldSuffix = ".pellam-old";
// The save's record: what it replaces, and whether the new files are all on the disk.
constexpr const char* kRecordSuffix = ".pellam-save";
constexpr const char* kPrepared = "prepared";   // undo on recovery
constexpr const char* kCommitted = "committed"; // finish on recovery

struct Target {
  std::string suffix;
  bool existed = false;  // an old file was there to keep until the end
  bool remove = false;   // no new file goes in its place
};

struct Record {
  std::string state;
  std::vector<Target> targets;
};

fs::path with(const std::string& prefix, const std::string& suffix) { return fsPath(prefix + suffix); }
fs::path beside(const fs::path& target, const char* suffix) {
  fs::path p = target;
  p += suffix;
  return p;
}

bool present(const fs::path& p) {
  std::error_code ec;
  return fs::exists(fs::symlink_status(p, ec));
}
// Only files: a folder that happens to carry a working name is somebody's, not ours.
void removeFile(const fs::path& p) {
  std::error_code ec;
  if (!fs::is_directory(fs::symlink_status(p, ec))) fs::remove(p, ec);
}
bool renameOver(const fs::path& from, const fs::path& to) {
  std::error_code ec;
  fs::rename(from, to, ec);
  return !ec;
}

// The record is written whole beside itself and renamed into place, so it is never read half.
bool writeRecord(const std::string& prefix, const Record& record) {
  std::string text = record.state + "\n";
  for (const Target& t : record.targets) text += (t.remove ? "x" : t.existed ? "+" : "-") + t.suffix + "\n";
  const fs::path path = with(prefix, kRecordSuffix);
  const fs::path part = beside(path, kNewSuffix);
  const bool fine = writeDurably(part, text) && renameOver(part, path);
  if (!fine) removeFile(part);
  syncFolder(path.parent_path());
  return fine;
}

std::optional<Record> readRecord(const std::string& prefix) {
  std::ifstream in(with(prefix, kRecordSuffix), std::ios::binary);
  Record record;
  if (!in || !std::getline(in, record.state)) return std::nullopt;
  if (record.state != kPrepared && record.state != kCommitted) return std::nullopt;
  for (std::string line; std::getline(in, line);) {
    // A suffix never names another folder: a record that says otherwise was not ours.
    if (line.size() < 2 || std::string_view("+-x").find(line[0]) == std::string_view::npos ||
        line.find_first_of("/\\") != std::string::npos) {
      return std::nullopt;
    }
    record.targets.push_back({line.substr(1), line[0] != '-', line[0] == 'x'});
  }
  return record;
}

void removeRecord(const std::string& prefix) {
  const fs::path path = with(prefix, kRecordSuffix);
  removeFile(path);
  syncFolder(path.parent_path());
}

// Puts back every old file, removes every new one and then the record.
void rollBack(const std::string& prefix, const std::vector<Target>& targets) {
  for (const Target& t : targets) {
    const fs::path target = with(prefix, t.suffix);
    const fs::path old = beside(target, kOldSuffix);
    if (present(old)) {
      renameOver(old, target);
    } else if (!t.existed) {
      removeFile(target);
    }
    removeFile(beside(target, kNewSuffix));
  }
  syncFolder(with(prefix, "").parent_path());
  removeRecord(prefix);
}

// Every new file goes over its target; the old ones are dropped before the record, so that a
// crash in between still reads as committed.
void rollForward(const std::string& prefix, const std::vector<Target>& targets) {
  for (const Target& t : targets) {
    const fs::path target = with(prefix, t.suffix);
    if (present(beside(target, kNewSuffix))) renameOver(beside(target, kNewSuffix), target);
  }
  syncFolder(with(prefix, "").parent_path());
  for (const Target& t : targets) removeFile(beside(with(prefix, t.suffix), kOldSuffix));
  removeRecord(prefix);
}

bool readOnly(const fs::path& p) {
  std::error_code ec;
  const fs::file_status s = fs::status(p, ec);
  return !ec && fs::is_regular_file(s) && (s.permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::optional<std::string> refusal(const std::string& prefix, const std::vector<JobFile>& files) {
  for (const JobFile& f : files) {
    if (f.remove) continue;
    const std::string path = prefix + f.suffix;
    std::error_code ec;
    if (fs::is_directory(fsPath(path), ec)) return "Cannot Write File: " + path;
    if (readOnly(fsPath(path))) return "Read-Only File Not Replaced: " + path;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ReplaceJobFiles(const std::string& prefix, const std::vector<JobFile>& files) {
  if (auto refused = refusal(prefix, files)) return refused;
  Record record{kPrepared, {}};
  for (const JobFile& f : files) {
    const bool existed = present(with(prefix, f.suffix));
    if (!f.remove || existed) record.targets.push_back({f.suffix, existed, f.remove});
  }
  if (!writeRecord(prefix, record)) return "Cannot Write File: " + prefix + kRecordSuffix;

  for (const JobFile& f : files) {
    if (f.remove) continue;
    if (!writeDurably(beside(with(prefix, f.suffix), kNewSuffix), f.bytes)) {
      rollBack(prefix, record.targets);
      return "Cannot Write File: " + prefix + f.suffix;
    }
  }
  syncFolder(with(prefix, "").parent_path());
  record.state = kCommitted;
  if (!writeRecord(prefix, record)) {
    rollBack(prefix, record.targets);
    return "Cannot Write File: " + prefix + kRecordSuffix;
  }

  for (const Target& t : record.targets) {
    const fs::path target = with(prefix, t.suffix);
    const bool moved = (!t.existed || renameOver(target, beside(target, kOldSuffix))) &&
                       (t.remove || renameOver(beside(target, kNewSuffix), target));
    if (!moved) {
      // Undone under a record that says so, in case this process dies while undoing.
      record.state = kPrepared;
      writeRecord(prefix, record);
      rollBack(prefix, record.targets);
      return "Cannot Write File: " + prefix + t.suffix;
    }
  }
  rollForward(prefix, record.targets);
  return std::nullopt;
}

void RecoverInterruptedSave(const std::string& prefix) {
  removeFile(beside(with(prefix, kRecordSuffix), kNewSuffix));
  const std::optional<Record> record = readRecord(prefix);
  if (!record) return;
  if (record->state == kCommitted) {
    rollForward(prefix, record->targets);
  } else {
    rollBack(prefix, record->targets);
  }
}

}  // namespace pellam::files
