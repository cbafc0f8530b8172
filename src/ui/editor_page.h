#pragma once

namespace pellam::ui {

// What happens to every editor page in a job's life, asked of each alike: start-up fills its
// choice lists and empties it, loading the form prepares its controls, an open lists what was
// decoded into its table, and unloading the form forgets its working values (the table stays).
// A page does only what applies to it.
class EditorPage {
 public:
  virtual ~EditorPage() = default;
  virtual void fillLists() {}
  virtual void clear() {}
  virtual void formLoaded() {}
  virtual void listDecoded() {}
  virtual void reset() {}

  // Whether a person sees the page: one nobody sees (the command line's tools) fills no list
  // that only a person reads when a job is opened.
  bool seen = true;

 protected:
  EditorPage() = default;
  EditorPage(const EditorPage&) = delete;
  EditorPage& operator=(const EditorPage&) = delete;
};

}  // namespace pellam::ui
