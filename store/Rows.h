#pragma once

#include <memory>

#include "store/Row.h"

class Statement;

/// The rows of a running query, read forward once: `while (rows.next()) use(rows.text("name"));`
/// Columns that nobody asks for are not copied. Ends the query when it goes.
class Rows : public Row {
 public:
  explicit Rows(std::shared_ptr<Statement> running);
  ~Rows() override;
  Rows(Rows&&) noexcept;
  Rows& operator=(Rows&&) noexcept;

  /// Steps to the next row; false at the end. Throws StoreError.
  bool next();

 protected:
  Value field(std::string_view column) const override;

 private:
  std::shared_ptr<Statement> running_;
};
