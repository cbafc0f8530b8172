#pragma once

#include "job/job.h"

namespace pellam::job {

// Whether two jobs hold the same settings and entries. Where a record's line sits in its list,
// and the editors' working values, are how the job is shown, not what it is: viewing a table
// another way changes nothing a person would save.
bool sameContent(const Job& a, const Job& b);

}  // namespace pellam::job
