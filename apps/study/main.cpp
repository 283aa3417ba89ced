#include <iostream>
#include <string>
#include <vector>

#include "study/command_line.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return study::run(arguments, std::cout, std::cerr);
}
