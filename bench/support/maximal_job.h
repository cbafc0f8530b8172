#pragma once

namespace pellam::component {
class Session;
}

namespace pellam::bench {

// Every table of the mode as full as its editor lets it be: the longest lists and the largest
// image regions a job of that mode can have.
void fillMaximalJob(component::Session& s, int mode);

}  // namespace pellam::bench
