// Other programs, run to their end.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace bench {

struct Finished {
  double Seconds = 0;  // From its start to its end.
  QByteArray Said;     // On its standard output.
};

// Throws std::runtime_error when it does not come up or ends with an error.
Finished Run_Process(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

// The path of a program that lies beside this one.
QString Beside_This(const QString& program);

}  // namespace bench
