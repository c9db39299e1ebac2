// The whole of halvane_core and halvane_logic is linked into this program by force.
int main() { return 0; }
