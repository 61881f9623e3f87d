#pragma once

#include <string>
#include <vector>

/// What the handbook says of the program, taken from the program: keys as they are mapped in a new
/// shop, menus, shop parameters and the commands of tilladmin. Texts are Markdown in UTF-8.
namespace program_facts {

/// The card for the cashier, in the language that the program speaks: one page with what each key
/// does.
std::string keyCard();
/// The keys as tables, one for each place where they are pressed.
std::string keyTables();
/// The shop parameters with their meanings and what they are unless set, as a table.
std::string parameterTable();
/// The commands of tilladmin and what each does, as it lists them itself.
std::string commandList();
/// Everything the handbook's prose rests on, in one text: the two menus of the main window, that of
/// the sale screen, keys, parameters and commands.
std::string all();

/// The key for what is done on the sale screen: "F5" for "挂单". Throws Failure where nothing is
/// called so.
std::string keyFor(const std::string& effect);
/// A menu entry without the blanks in it, "退货". Throws Failure where no menu has it.
std::string menuEntry(const std::string& caption);
/// A shop parameter's name. Throws Failure where there is none.
std::string parameter(const std::string& name);
/// Whether that is a command line of tilladmin: its command and the options named are there. Throws
/// Failure that says what is not.
void checkCommand(const std::vector<std::string>& words);

}  // namespace program_facts
