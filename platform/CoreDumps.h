#pragma once

/// No core dump of this process: what the memory holds (card and login passwords, the key of the
/// data file) never gets into a file of the system's. Other processes of the same user cannot read
/// the memory either. Counts until the process ends; called before anything secret is read.
void turnCoreDumpsOff();
