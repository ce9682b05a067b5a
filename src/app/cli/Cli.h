#pragma once
// The command line: `zythara-cli [--home DIR] [--settings FILE] [--yes|--no] VERB ...` over the
// same program folder and models as the windows. Messages go to standard error as
// "[Title] text". Exit status: 0 done, 1 an error was reported and the program went on, 2 bad
// usage, 3 the error routine ended the process.
#include <cstdio>
#include <string>
#include <vector>

#include "workbench/Workbench.h"

namespace zy {
class RecipeEditor;
}

namespace zy::cli {

constexpr int EXIT_DONE = 0, EXIT_REPORTED = 1, EXIT_USAGE = 2, EXIT_TERMINATED = 3;

struct Context {
  Workbench& wb;
  std::FILE* out;
  std::FILE* err;
  std::vector<std::string> args;  // after the verb, converted to 8-bit text
  bool answerYes = true;
  // The same arguments as given: file and folder names stay in the file system's own encoding.
  std::vector<std::string> rawArgs;
  const std::string& pathArg(size_t i) const { return rawArgs.at(i); }

  // Writes 8-bit text to standard output as UTF-8.
  void print(const std::string& text8bit) const;
  void line(const std::string& text8bit) const { print(text8bit + "\n"); }
  int usage(const std::string& text) const;  // prints "usage: zythara-cli TEXT", returns 2
};

using VerbFn = int (*)(Context&);

struct Verb {
  const char* name;
  const char* usage;
  VerbFn fn;
};

// Verb files register themselves with a static VerbRegistrar.
struct VerbRegistrar {
  VerbRegistrar(const char* name, const char* usage, VerbFn fn);
};
const std::vector<Verb>& verbs();

// Parses the options, builds the workbench, runs the verb. Used by main() and by tests.
int run(const std::vector<std::string>& argv, std::FILE* out, std::FILE* err);

// Checks that recipe n is in the store; otherwise (a free slot, or past the end of the file) says
// so on standard error ("VERB: there is no recipe N") and gives false.
bool requireStoredRecipe(Context& c, const char* verb, long n);

// Loads what the editor works with at program start: the style tables and the hops curve.
void loadProgramTables(Workbench& wb);

// Opens stored recipe `arg` into the editor as the recipe list's open does, with the tables the
// editor computes with (the styles, the hops curve) loaded first. EXIT_DONE when it is open; the
// usage for an argument that is no recipe number; EXIT_REPORTED once it has said why not.
int openStoredRecipe(Context& c, RecipeEditor& editor, const std::string& arg, const char* verb,
                     const std::string& usage);

// A whole number argument, or nothing.
bool parseWhole(const std::string& text, long& value);

}  // namespace zy::cli
