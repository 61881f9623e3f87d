#include "store/Rows.h"

#include <utility>

#include "store/Statement.h"

Rows::Rows(std::shared_ptr<Statement> running) : running_(std::move(running)) {}

Rows::~Rows() {
  if (running_) running_->reset();
}

Rows::Rows(Rows&&) noexcept = default;

Rows& Rows::operator=(Rows&& other) noexcept {
  std::swap(running_, other.running_);
  return *this;
}

bool Rows::next() {
  return running_->step();
}

Value Rows::field(std::string_view column) const {
  return running_->column(column);
}
