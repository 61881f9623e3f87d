#include "platform/SerialLine.h"

#include <poll.h>

#include <QSerialPort>
#include <utility>

#include "platform/PortError.h"
#include "platform/QtText.h"

namespace {

/// About two seconds of the line; a display shows only the latest figure anyway.
constexpr qint64 kMostWaiting = 512;

QString reason(const QSerialPort& port) {
  switch (port.error()) {
    case QSerialPort::DeviceNotFoundError:
      return PortError::tr("没有这个设备（%1）").arg(port.portName());
    case QSerialPort::PermissionError:
      return PortError::tr("没有使用权限，或正被别的程序占用");
    case QSerialPort::NoError:
    case QSerialPort::NotOpenError:
    case QSerialPort::ResourceError:
      return PortError::tr("设备已断开");
    default:
      return port.errorString();
  }
}

/// Whether a write would do something now: QSerialPort takes a full line for a broken one.
bool isReady(const QSerialPort& port) {
  pollfd request{port.handle(), POLLOUT, 0};
  return ::poll(&request, 1, 0) > 0;
}

}  // namespace

SerialLine::SerialLine(std::string name, const std::string& path)
    : name_(std::move(name)), port_(std::make_unique<QSerialPort>()) {
  QSerialPort* port = port_.get();
  port->setPortName(qtText(path));
  port->setBaudRate(QSerialPort::Baud2400);
  port->setDataBits(QSerialPort::Data8);
  port->setParity(QSerialPort::NoParity);
  port->setStopBits(QSerialPort::OneStop);
  port->setFlowControl(QSerialPort::NoFlowControl);
  if (!port->open(QIODevice::WriteOnly)) {
    throw PortError(PortError::tr("端口 %1 打不开：%2").arg(qtText(name_), reason(*port)));
  }
  // A line that is gone would report so on every turn of the event loop. It is closed from the
  // loop, because the port is still at work when it reports.
  const auto closeWhenGone = [port](QSerialPort::SerialPortError error) {
    if (error != QSerialPort::ResourceError && error != QSerialPort::WriteError) return;
    QMetaObject::invokeMethod(
        port, [port] { port->close(); }, Qt::QueuedConnection);
  };
  QObject::connect(port, &QSerialPort::errorOccurred, port, closeWhenGone);
}

SerialLine::~SerialLine() = default;

void SerialLine::send(std::string_view bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  if (port_->isOpen() && port_->bytesToWrite() + size > kMostWaiting) return;
  port_->write(bytes.data(), size);
  // At once, because the caller may be busy for a while before the event loop has its turn.
  if (port_->isOpen() && isReady(*port_)) port_->flush();
  if (!port_->isOpen() || port_->error() == QSerialPort::ResourceError) {
    throw PortError(PortError::tr("端口 %1 写不进：%2").arg(qtText(name_), reason(*port_)));
  }
}
