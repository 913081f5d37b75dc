#include "endurance/fault_points.h"

namespace system_calls {
namespace {

Fault armed = Fault::None;
bool counting = false;
bool diskFull = false;
bool dead = false;
int faulty = 0;
std::vector<Kind> seen;

}  // namespace

bool concerns(Fault fault, Kind kind) {
  if (fault == Fault::Short) return kind == Kind::Read || kind == Kind::Write;
  if (fault != Fault::Full) return true;
  return kind == Kind::Make || kind == Kind::Write || kind == Kind::Flush || kind == Kind::Rename;
}

Outcome outcomeOf(Kind kind) {
  if (!counting) return Outcome::Passes;
  if (dead) return Outcome::Fails;
  const bool takesRoom = concerns(Fault::Full, kind);
  seen.push_back(kind);
  if (diskFull && takesRoom) return Outcome::NoRoom;
  if (static_cast<int>(seen.size()) != faulty || !concerns(armed, kind)) return Outcome::Passes;
  dead = armed == Fault::Kill;
  diskFull = armed == Fault::Full;
  if (dead) return Outcome::Dies;
  if (armed == Fault::Short || (diskFull && kind == Kind::Write)) return Outcome::Halved;
  return diskFull ? Outcome::NoRoom : Outcome::Fails;
}

void arm(Fault fault, int number) {
  armed = fault;
  faulty = fault == Fault::None ? 0 : number;
  seen.clear();
  diskFull = dead = false;
  counting = true;
}

const std::vector<Kind>& disarm() {
  if (counting && armed == Fault::Kill) endOfChild();
  counting = diskFull = dead = false;
  return seen;
}

}  // namespace system_calls
