#include "reporter/arguments.h"
#include "reporter/run_reporter.h"

int main(int argc, char** argv) { return halvane::RunReporter(halvane::Arguments(argc, argv)); }
