#pragma once

#include <vector>

/// The server's tables and functions as data: one script per version, applied in order. A step that
/// has shipped is never changed; a change is a new step.
const std::vector<const char*>& serverSteps();
/// Makes the roles that the steps need, where they are not there yet.
extern const char* const kServerRoles;
