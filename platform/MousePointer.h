#pragma once

/// Shows or hides the mouse pointer over the whole program. Repeating a call changes nothing.
void showMousePointer(bool show);
