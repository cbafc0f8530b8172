#pragma once

#include <string>
#include <string_view>

#include "component/session.h"

// A job as a JSON document (schema/pellam-job.schema.json): the board setup by names a person
// reads with the stored numbers beside them, and every table of the mode as records.
namespace pellam::tools {

// The job the session has opened.
std::string exportJob(const component::Session& session);

// What an import did: the .zpd it saved, or the first problem ("$.presets[3].netId: ...").
struct Imported {
  std::string zpd;
  std::string problem;
};

// Takes the document into a fresh session, lets the board read it as it would a saved image,
// then saves it at `jobPath` with the form's own save. A document that is malformed, out of
// range or does not fit the board writes nothing.
Imported importJob(std::string_view document, const std::string& jobPath);

}  // namespace pellam::tools
