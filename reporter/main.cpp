#include "reporter/run_reporter.h"

int main(int argc, char** argv) {
  return halvane::RunReporter({argv + (argc > 0 ? 1 : 0), argv + argc});
}
