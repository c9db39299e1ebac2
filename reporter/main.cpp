#include "reporter/arguments.h"
#include "reporter/freed_memory.h"
#include "reporter/run_reporter.h"

int main(int argc, char** argv) {
  halvane::KeepFreedMemory();
  return halvane::RunReporter(halvane::Arguments(argc, argv));
}
