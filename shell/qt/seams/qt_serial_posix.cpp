#include "shell/qt/seams/qt_serial.h"

#include <QAbstractEventDispatcher>
#include <QFileInfo>

#include "shell/qt/seams/serial_handle.h"
#include "shell/qt/seams/serial_port.h"

namespace wrenbit {
namespace {

constexpr int kPatience = 100;  // Milliseconds. At 9600 baud a full buffer has room for 96 bytes by then.

Port_Fault Fault_Of(QSerialPort::SerialPortError error, const QString& device) {
  switch (error) {
    case QSerialPort::DeviceNotFoundError:
      return Port_Fault::No_Such_Port;
    case QSerialPort::PermissionError: {
      // QSerialPort says the same of a busy device and of a lock file that another holds.
      const QFileInfo file(device);
      if (file.isReadable() && file.isWritable()) return Port_Fault::In_Use;
      return Rights_May_Come(device.toStdString()) ? Port_Fault::Rights_Coming : Port_Fault::No_Permission;
    }
    case QSerialPort::ResourceError:
      return Port_Fault::Gone;
    default:
      return Port_Fault::Refused;
  }
}

}  // namespace

Qt_Serial::Qt_Serial(const std::filesystem::path& config_folder) : numbers(config_folder) {
  // A port that hangs up wakes the event loop over and over, with many errors, one or none, as the version of
  // Qt has it. So the port itself is asked, each time the loop is about to rest.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &port,
                   [this] { Lost(); });
}

std::optional<Serial_Device> Qt_Serial::Device(int number) { return numbers.Device(number); }

void Qt_Serial::Keep_Number() {
  if (met) numbers.Give(met_as, *met);
}

Port_Fault Qt_Serial::Open(int number, bool rts, bool dtr) {
  Close();
  met_as = number;
  met = Device(number);
  if (!met || met->Path.empty()) return Port_Fault::No_Such_Port;

  // Unless told otherwise the port runs at 9600 baud, 8N1, without flow control.
  const QString path = QString::fromStdString(met->Path);
  port.setPortName(path);
  if (!port.open(QIODevice::ReadWrite)) return Fault_Of(port.error(), path);
  // Pseudo terminals have neither line and refuse; they work all the same.
  port.setRequestToSend(rts);
  port.setDataTerminalReady(dtr);
  Ask_For_Low_Latency(port.handle());
  Drop();
  return Port_Fault::None;
}

std::string Qt_Serial::Missing_Right() { return met ? wrenbit::Missing_Right(met->Path) : ""; }

void Qt_Serial::Close() {
  lost = false;
  port.close();
}

bool Qt_Serial::Lost() {
  if (!lost && port.isOpen() && Hung_Up(port.handle())) {
    lost = true;
    // Not here, where the port may be in the midst of its own work. That an event is queued also ends a wait.
    QMetaObject::invokeMethod(
        &port,
        [this] {
          if (!lost || !port.isOpen()) return;
          port.close();
          if (On_Lost) On_Lost();
        },
        Qt::QueuedConnection);
  }
  return lost;
}

std::size_t Qt_Serial::Waiting() {
  if (lost || !port.isOpen()) return 0;
  // Fetches what the kernel holds; without it the port knows only what the event loop has brought.
  port.waitForReadyRead(0);
  return static_cast<std::size_t>(port.bytesAvailable());
}

std::vector<std::uint8_t> Qt_Serial::Take() {
  if (lost || !port.isOpen()) return {};
  const QByteArray bytes = port.readAll();
  return {bytes.begin(), bytes.end()};
}

void Qt_Serial::Drop() {
  if (port.isOpen()) port.clear(QSerialPort::Input);
}

bool Qt_Serial::Write(std::span<const std::uint8_t> bytes) {
  if (Lost() || !port.isOpen()) return false;
  port.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  port.flush();
  // A full buffer of the system empties in time.
  while (port.bytesToWrite() > 0 && port.waitForBytesWritten(kPatience)) continue;
  if (port.bytesToWrite() == 0) return true;
  port.clear(QSerialPort::Output);  // Else it would be tried over and over.
  return false;
}

std::unique_ptr<Serial_Backend> Make_Serial_Port(const std::filesystem::path& config_folder) {
  return std::make_unique<Qt_Serial>(config_folder);
}

}  // namespace wrenbit
