#include "unattended_host.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>
#include <cstdlib>
#include <fstream>

#include <windows.h>

#include "component/script/script_error.h"
#include "component/script/script_tokens.h"

namespace pellam::win {

using component::script::ScriptError;
using component::script::Token;

UnattendedHost* UnattendedHost::fromEnvironment() {
  const char* answers = std::getenv("PELLAM_TEST_ANSWERS");
  if (!answers || !*answers) return nullptr;
  static UnattendedHost host;
  host.read(answers);
  return &host;
}

// A line the host cannot use is printed, so the run's transcript shows it instead of hiding it.
void UnattendedHost::read(const std::string& answersFile) {
  std::ifstream in(answersFile);
  if (!in) transcript_ << "answers: cannot read " << answersFile << '\n';
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    try {
      const std::vector<Token> words = component::script::tokenize(line);
      if (words.empty()) continue;
      const std::string& command = words[0].text;
      if (command == "answer") {
        static const std::pair<const char*, ui::Answer> kWords[] = {
            {"Yes", ui::Answer::Yes}, {"No", ui::Answer::No}, {"OK", ui::Answer::OK}, {"Cancel", ui::Answer::Cancel}};
        for (std::size_t i = 1; i < words.size(); ++i) {
          const auto* word = std::find_if(std::begin(kWords), std::end(kWords),
                                          [&](const auto& w) { return words[i].text == w.first; });
          if (word == std::end(kWords)) throw ScriptError{"bad answer " + words[i].text};
          platform_.queueAnswer(word->second, words[i].text, number);
        }
      } else if (command == "choose" && words.size() == 2) {
        platform_.queuePath(words[1].text, number);
      } else if (command == "clock" && words.size() == 2) {
        ui::DateTime t{};
        if (std::sscanf(words[1].text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &t.year, &t.month, &t.day, &t.hour,
                        &t.minute, &t.second) != 6) {
          throw ScriptError{"bad time " + words[1].text};
        }
        platform_.fixClock(t);
      } else {
        throw ScriptError{"unknown line"};
      }
    } catch (const ScriptError& e) {
      transcript_ << "answers: line " << number << ": " << e.why << '\n';
    }
  }
  flush();
}

ui::Answer UnattendedHost::msgBox(const std::string& text, ui::Buttons buttons) {
  try {
    const ui::Answer answer = platform_.msgBox(text, buttons);
    flush();
    return answer;
  } catch (...) {
    flush();
    throw;
  }
}

// Straight to the handle, unbuffered, so the lines fall between the host's own in order.
void UnattendedHost::flush() {
  const std::string text = transcript_.str();
  transcript_.str({});
  if (text.empty()) return;
  HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD written = 0;
  if (out && out != INVALID_HANDLE_VALUE) WriteFile(out, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

}  // namespace pellam::win
