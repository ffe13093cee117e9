// The library that the SDK with a dependency needs.
void neighbour();

void neighbour() {}
