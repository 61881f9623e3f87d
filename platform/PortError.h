#pragma once

#include <QCoreApplication>
#include <QString>

#include "base/Failure.h"

/// A port that cannot be opened, took too long or went away. The text names the port and the
/// reason; it is worded with PortError::tr(), wherever it is thrown.
class PortError : public Failure {
  Q_DECLARE_TR_FUNCTIONS(PortError)

 public:
  using Failure::Failure;
  explicit PortError(const QString& text) : Failure(text.toStdString()) {}
};
