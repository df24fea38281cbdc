// nvlist-tool: inspects, converts, compares and draws list files.

#include <charconv>
#include <cstdio>
#include <new>
#include <string_view>

#include <nvlist/objects/about.h>

#include "commands.h"

namespace {

using namespace tool;

constexpr const char* help = R"(Usage: nvlist-tool COMMAND FILE... [OPTION...]

Commands:
  info FILE        show the format, the number of items, the fields and pictures
                   they use, and any damage
  check FILE...    exit with 1 if a file is damaged, and say where
  convert A B      write the items of A to B
  render FILE -o OUT.svg|OUT.txt
                   draw the list with its scroll bars and its frame
  diff A B         show which items differ

Files are list files (.nvl, .lst), JSON Lines (.jsonl, .ndjson) and texts with one
item per line (.txt, .text). The kind of any other input is found from its contents.

Options:
  --from KIND      kind of the input: list, jsonl or text
  --to KIND        kind of the output of convert: list, jsonl or text
  --changed        write JSON Lines without fields that have their defaults
  --force          replace a file that exists
  -o, --output FILE
  --size WxH       size of the picture in pixels; default 300x200
  --style NAME     blue, silver or olive
  --show PARTS     none, checks, icons or both; default: what the items have
  --page N         the N-th page of rows; default 1
  --help, --version

Exit status: 0 done; 1 files differ, or something is damaged or was left out;
2 wrong arguments; 3 a file cannot be read; 4 a file cannot be written, or the
command was interrupted. No incomplete file is left behind.
)";

struct Command {
  std::string_view name;
  std::size_t fewest, most;  ///< number of files
  Status (*run)(Session&, const Arguments&);
};
constexpr Command commands[] = {{"info", 1, 1, info},
                                {"check", 1, 10'000, check},
                                {"convert", 2, 2, convert},
                                {"render", 1, 1, render},
                                {"diff", 2, 2, diff}};

[[noreturn]] void wrong(const std::string& message) {
  throw Trouble(wrongUse, message + "; see nvlist-tool --help");
}

int numberOf(std::string_view text, std::string_view option) {
  constexpr int most = 10'000;
  int number = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data(), end, number).ptr != end || number < 1 || number > most)
    wrong(std::string(option) + " needs numbers from 1 to " + std::to_string(most));
  return number;
}

template <class Value, std::size_t count>
Value named(const std::string& name, std::string_view option,
            const std::pair<std::string_view, Value> (&values)[count]) {
  for (const auto& [known, value] : values)
    if (name == known) return value;
  wrong("unknown value " + name + " of " + std::string(option));
}

/// Takes the option at the front of `rest`, and its value if it has one.
void takeOption(std::vector<std::string>& rest, Arguments& arguments) {
  const std::string option = rest.front();
  rest.erase(rest.begin());
  const auto value = [&] {
    if (rest.empty()) wrong(option + " needs a value");
    std::string result = rest.front();
    rest.erase(rest.begin());
    return result;
  };
  if (option == "--force") {
    arguments.mayReplace = true;
  } else if (option == "--changed") {
    arguments.onlyChanged = true;
  } else if (option == "--from") {
    arguments.from = kindNamed(value());
  } else if (option == "--to") {
    arguments.to = kindNamed(value());
  } else if (option == "-o" || option == "--output") {
    arguments.output = value();
  } else if (option == "--size") {
    const std::string size = value();
    const std::size_t cross = size.find('x');
    if (cross == std::string::npos) wrong("--size needs a width and a height, such as 300x200");
    arguments.width = numberOf(std::string_view(size).substr(0, cross), option);
    arguments.height = numberOf(std::string_view(size).substr(cross + 1), option);
  } else if (option == "--page") {
    arguments.page = numberOf(value(), option);
  } else if (option == "--style") {
    arguments.style = named<norvane::cColorStyle>(
        value(), option,
        {{"blue", norvane::cXPBlue}, {"silver", norvane::cXPSilver}, {"olive", norvane::cXPOlive}});
  } else if (option == "--show") {
    arguments.show = named<norvane::cListStyle>(value(), option,
                                                {{"none", norvane::cDefault},
                                                 {"checks", norvane::cCheckBoxes},
                                                 {"icons", norvane::cIcons},
                                                 {"both", norvane::cCheckBoxesIcons}});
  } else {
    wrong("unknown option " + option);
  }
}

Status run(Session& session, std::vector<std::string> rest) {
  if (rest.empty()) wrong("a command is missing");
  Arguments arguments;
  std::string command;
  while (!rest.empty()) {
    const std::string& word = rest.front();
    if (word == "--help" || word == "-h") {
      std::fputs(help, stdout);
      return done;
    }
    if (word == "--version") {
      std::puts("nvlist-tool " NVLIST_VERSION);
      return done;
    }
    if (word == "--") {
      rest.erase(rest.begin());
      arguments.files.insert(arguments.files.end(), rest.begin(), rest.end());
      break;
    }
    if (word.starts_with('-') && word.size() > 1) {
      takeOption(rest, arguments);
      continue;
    }
    if (command.empty())
      command = word;
    else
      arguments.files.push_back(word);
    rest.erase(rest.begin());
  }
  for (const Command& known : commands) {
    if (known.name != command) continue;
    const std::size_t count = arguments.files.size();
    if (count < known.fewest || count > known.most)
      wrong(command + " needs " + (known.fewest == 2 ? "two files" : "a file"));
    return known.run(session, arguments);
  }
  wrong(command.empty() ? "a command is missing" : "unknown command " + command);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  Session session;
  try {
    return run(session, {arguments + 1, arguments + argumentCount});
  } catch (const Trouble& trouble) {
    session.remark(trouble.what());
    return trouble.status();
  } catch (const std::bad_alloc&) {
    session.remark("out of memory");
    return cannotRead;
  }
}
