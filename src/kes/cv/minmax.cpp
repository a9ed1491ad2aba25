// filled in by the vision functions
