#include "till/TillApplication.h"

#include <QCoreApplication>
#include <exception>

#include "base/Failure.h"
#include "platform/QtText.h"
#include "shell/Modal.h"

// Nothing may be thrown through the event loop itself, which nests with every modal window: the
// handler that threw is given up, and all loops end from the inside outwards.
bool TillApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    if (!failed_) {
      failed_ = true;
      showFailure(failure);
    }
    QCoreApplication::exit(1);
    return true;
  }
}

void TillApplication::showFailure(const std::exception& failure) {
  const QString text = qtText(failure.what());
  const bool forPeople = dynamic_cast<const Failure*>(&failure) != nullptr;
  messageBox(nullptr, forPeople ? text : tr("程序出错，必须结束：%1").arg(text), {},
             BoxIcon::kExclamation);
}
