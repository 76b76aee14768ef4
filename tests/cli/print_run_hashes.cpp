// Prints what data/expected_hashes.txt is to hold; update_run_hashes.sh calls it.

#include "cli/run_hashes.h"

#include <exception>
#include <iostream>

int main()
{
  try {
    std::cout << veln::HashRuns();
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
