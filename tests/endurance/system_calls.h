#pragma once

/// The system calls by which the program reads and writes whole files, with a fault at one of them. The linker leads
/// the calls of the program's own libraries here (see CMakeLists.txt); the toolkit's aren't touched.
namespace system_calls {

enum class Fault {
  None,
  Error,  ///< the call fails: the device
  Full,   ///< it and all later ones that take room fail; a write takes half of its bytes first
  Short,  ///< a write or read moves half of its bytes, and says so
  Kill,   ///< the process ends in front of the call, or in the middle of a write
};

/// From here on calls are counted, and the one of that number (from 1) gets the fault.
void arm(Fault fault, int number);
/// Faults and counting end, and so does a process of armInChild. Gives the number of calls from arm
/// to the first disarm.
int disarm();

/// Goes on in a process of its own, with Kill at that call, and waits here until it has ended: false here when it came
/// to disarm before. In the other process gives false as well.
bool armInChild(int number);

}  // namespace system_calls
