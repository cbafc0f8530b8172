#pragma once

#include "component/session.h"

namespace pellam::component {

// Puts the session into the state of a new, empty job: tables emptied, image cleared, every
// choice list filled. Each step has its own error trap; a failed step does not stop the rest.
void Initailize_Pellam_Variables_And_Form(Session& session);

// The net-id choice lists. A new job starts with none chosen; after a save, a net id a
// person chose stays chosen.
enum class NetIdChoice { Clear, Keep };
void fillNetIdLists(ui::UserForm1& form, NetIdChoice choice);

}  // namespace pellam::component
