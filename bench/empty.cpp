// The least that any process costs.
int main() {}
