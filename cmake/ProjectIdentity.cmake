# Where the program is published, and what it is called on a desktop and on a bus. It is published nowhere yet: the domain is
# one that nobody can own (RFC 2606). `scripts/check-desktop` fails where the tree names another.
set(TARVO_HOMEPAGE "https://tarvo.example.org")
set(TARVO_IDENTIFIER "io.github.tarvo.Tarvo")
