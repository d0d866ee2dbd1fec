#pragma once

/// The backend `palvestrin` of the print server, by the contract of backends: without words it lists devices,
/// with five or six words it prints one job and tells by its exit code what became of it.
///
/// It is two processes. The one that the scheduler started guards the other one, which prints: the scheduler
/// takes a backend that was killed for one that has printed. So when the printing process is killed, the
/// guard says what is known. When the guard is killed, the other one goes on; it holds the scheduler's pipe,
/// and the scheduler waits for its end. Both end at once when the scheduler does.
int runBackend(int argc, char **argv);
