"""Second derivation of the page documents of a DUT; see ../make_expected.py."""
