#pragma once

#include <cstddef>
#include <map>
#include <orcus/spreadsheet/import_interface.hpp>
#include <string>
#include <string_view>
#include <vector>

/// What the cell formats of a workbook make of a number, as far as a text can show it.
struct NumberForm {
  bool isDate = false;
  int leastDigits = 0;  ///< of a whole number, zeros in front
};

/// Hears of a workbook's formats and keeps those of numbers.
class XlsxFormats : public orcus::spreadsheet::iface::import_styles {
 public:
  /// Of the cell format with that number; a plain one when there is none.
  NumberForm form(std::size_t cellFormat) const;

  void set_number_format_identifier(std::size_t id) override { identifier_ = id; }
  void set_number_format_code(std::string_view code) override { code_ = code; }
  std::size_t commit_number_format() override;
  void set_xf_number_format(std::size_t id) override { cellNumberFormat_ = id; }
  std::size_t commit_cell_xf() override;

  // Nothing else of a format changes what a number says.
  using Index = std::size_t;
  using Text = std::string_view;
  using Colour = orcus::spreadsheet::color_elem_t;
  void set_font_count(Index) override {}
  void set_font_bold(bool) override {}
  void set_font_italic(bool) override {}
  void set_font_name(Text) override {}
  void set_font_size(double) override {}
  void set_font_underline(orcus::spreadsheet::underline_t) override {}
  void set_font_underline_width(orcus::spreadsheet::underline_width_t) override {}
  void set_font_underline_mode(orcus::spreadsheet::underline_mode_t) override {}
  void set_font_underline_type(orcus::spreadsheet::underline_type_t) override {}
  void set_font_underline_color(Colour, Colour, Colour, Colour) override {}
  void set_font_color(Colour, Colour, Colour, Colour) override {}
  void set_strikethrough_style(orcus::spreadsheet::strikethrough_style_t) override {}
  void set_strikethrough_type(orcus::spreadsheet::strikethrough_type_t) override {}
  void set_strikethrough_width(orcus::spreadsheet::strikethrough_width_t) override {}
  void set_strikethrough_text(orcus::spreadsheet::strikethrough_text_t) override {}
  Index commit_font() override { return 0; }
  void set_fill_count(Index) override {}
  void set_fill_pattern_type(orcus::spreadsheet::fill_pattern_t) override {}
  void set_fill_fg_color(Colour, Colour, Colour, Colour) override {}
  void set_fill_bg_color(Colour, Colour, Colour, Colour) override {}
  Index commit_fill() override { return 0; }
  void set_border_count(Index) override {}
  void set_border_style(orcus::spreadsheet::border_direction_t,
                        orcus::spreadsheet::border_style_t) override {}
  void set_border_color(orcus::spreadsheet::border_direction_t, Colour, Colour, Colour,
                        Colour) override {}
  void set_border_width(orcus::spreadsheet::border_direction_t, double,
                        orcus::length_unit_t) override {}
  Index commit_border() override { return 0; }
  void set_cell_hidden(bool) override {}
  void set_cell_locked(bool) override {}
  void set_cell_print_content(bool) override {}
  void set_cell_formula_hidden(bool) override {}
  Index commit_cell_protection() override { return 0; }
  void set_number_format_count(Index) override {}
  void set_cell_xf_count(Index) override {}
  void set_cell_style_xf_count(Index) override {}
  void set_dxf_count(Index) override {}
  void set_xf_font(Index) override {}
  void set_xf_fill(Index) override {}
  void set_xf_border(Index) override {}
  void set_xf_protection(Index) override {}
  void set_xf_style_xf(Index) override {}
  void set_xf_apply_alignment(bool) override {}
  void set_xf_horizontal_alignment(orcus::spreadsheet::hor_alignment_t) override {}
  void set_xf_vertical_alignment(orcus::spreadsheet::ver_alignment_t) override {}
  Index commit_cell_style_xf() override;
  Index commit_dxf() override;
  void set_cell_style_count(Index) override {}
  void set_cell_style_name(Text) override {}
  void set_cell_style_xf(Index) override {}
  void set_cell_style_builtin(Index) override {}
  void set_cell_style_parent_name(Text) override {}
  Index commit_cell_style() override { return 0; }

 private:
  std::size_t identifier_ = 0;
  std::string code_;
  std::map<std::size_t, std::string> codes_;  ///< by their identifiers
  std::size_t cellNumberFormat_ = 0;
  std::vector<std::size_t> cellFormats_;  ///< identifiers of their number formats
};
