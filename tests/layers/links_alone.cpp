// The whole of halvane_core and halvane_tools is linked into this program by force.
int main() { return 0; }
