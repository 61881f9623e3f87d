#pragma once

/// Makes the toolkit's own texts Chinese whatever the system speaks: its dialogs, the editing
/// menus, the names of days and months. Once, when the program starts.
void loadToolkitTexts();
