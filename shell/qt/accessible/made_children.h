// The accessible children that an interface makes when they are asked for: each is made once, and goes with
// the interface that made it. As many are kept as were ever asked for.
#pragma once

#include <QAccessible>
#include <QHash>
#include <utility>

namespace wrenbit {

class Made_Children {
 public:
  Made_Children() = default;
  Made_Children(const Made_Children&) = delete;
  Made_Children& operator=(const Made_Children&) = delete;
  ~Made_Children() {
    for (const QAccessible::Id id : std::as_const(known)) QAccessible::deleteAccessibleInterface(id);
  }

  // Make gives a new interface; from then on Qt keeps it.
  template <class Make>
  QAccessibleInterface* Child(int key, Make make) {
    QAccessible::Id& id = known[key];
    if (id == 0) id = QAccessible::registerAccessibleInterface(make());
    return QAccessible::accessibleInterface(id);
  }

 private:
  QHash<int, QAccessible::Id> known;
};

}  // namespace wrenbit
