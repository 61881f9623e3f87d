#pragma once

/// How often this process has asked the disk to make writes durable so far (fsync and fdatasync).
/// The two calls are wrapped for the whole program, so that the engine's are counted too.
long syncCount();
