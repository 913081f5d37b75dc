#pragma once

#include <vector>

#include <QtGlobal>

/// The system calls by which the program looks at, lists, reads and writes files, with a fault at one of them. The
/// linker leads the calls of the program's own libraries here (see CMakeLists.txt); the toolkit's aren't touched.
namespace system_calls {

/// What a call is for.
enum class Kind { Look, Open, Make, Read, List, Write, Flush, Rename, Close, Remove, Own };
inline constexpr const char* KindNames[] = {"look",  "open",   "make",  "read",   "list", "write",
                                            "flush", "rename", "close", "remove", "own"};

enum class Fault {
  None,
  Error,  ///< the call fails: the device
  Full,   ///< it and all later ones that take room fail; a write takes half of its bytes first
  Short,  ///< a write or read moves half of its bytes, and says so
  Kill,   ///< the process ends in front of the call, or in the middle of a write
};

/// From here on calls are counted, and the one of that number (from 1) gets the fault.
void arm(Fault fault, int number);
/// Faults and counting end, and so does a process of armInChild. Gives the calls from arm to the first disarm.
const std::vector<Kind>& disarm();
/// Whether the fault changes anything about such a call.
bool concerns(Fault fault, Kind kind);

#ifdef Q_OS_UNIX
/// Goes on in a process of its own, with Kill at that call, and waits here until it has ended: false here when it came
/// to disarm before. In the other process gives false as well. Elsewhere a killed program goes on, but no call of it
/// does anything any more until disarm.
bool armInChild(int number);
#endif

}  // namespace system_calls
