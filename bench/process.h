// Other programs, from their start to their end.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <functional>

namespace bench {

struct Finished {
  double Seconds = 0;
  QByteArray Said;  // On its standard output.
};

// Throws std::runtime_error when it does not come up or ends with an error.
Finished Run_Process(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

// The path of a program that lies beside this one.
QString Beside_This(const QString& program);

// Medians in seconds of what two functions give, which are called in turns.
struct Medians {
  double First, Second;
};
Medians In_Turns(const std::function<double()>& first, const std::function<double()>& second);

}  // namespace bench
