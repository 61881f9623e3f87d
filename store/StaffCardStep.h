#pragma once

/// A step of the data file's tables (store/Schema.h): staff cards, each as a hash of its whole
/// track (saleslib/StaffCard.h).
inline constexpr const char* kStaffCardStep = R"(
create table operator_cards (
  operator_id integer primary key,
  track       text not null collate binary
);
create unique index operator_cards_track on operator_cards (track);
)";
