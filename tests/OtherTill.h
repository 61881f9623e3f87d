#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "saleslib/BillAuthority.h"

/// A shop whose third till has one bill, of two bottles: held, or settled and to be returned
/// against. It answers as long as `reply` says so.
struct OtherTill : BillAuthority {
  static constexpr const char* kBill = R"({"bill": {"id": "30000007",
    "sell_time": "2026-11-22 08:00:00", "operator_id": "1", "quantity": "2", "goods_amount": "5",
    "amount": "5", "cash": "5"}, "lines": [{"id": "1", "insert_Date": "2026-11-22 08:00:00",
    "bm": "1001", "name": "矿泉水", "unit": "瓶", "amount": "2", "price": "2.5", "discount": "1",
    "entry_code": "6901234567892", "ratio": "1", "origin": "浙江"}], "member": ""})";

  bool isAway() const override { return reply == Reply::kNone; }
  std::int64_t atServer() const override { return 0; }
  ReturnAnswer takeBack(const Return& /*wanted*/) override { return {reply, 0.5}; }
  BillAnswer bill(std::int64_t /*number*/) override { return {reply, kBill}; }
  std::vector<HeldBill> heldElsewhere() override {
    return holds ? std::vector<HeldBill>{{3, 30'000'007, kBill}} : std::vector<HeldBill>();
  }
  HandOver handOver(const std::string& /*key*/, int /*till*/, std::int64_t /*bill*/) override {
    return {reply, kBill};
  }

  Reply reply = Reply::kDone;
  bool holds = true;
};
