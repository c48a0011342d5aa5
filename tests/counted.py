"""Tests in Python that end as the other test programs do, so that what counts them counts these."""
import sys
import unittest


def main(case):
    result = unittest.TextTestRunner(stream=sys.stdout, verbosity=2).run(
        unittest.defaultTestLoader.loadTestsFromTestCase(case))
    failed = len(result.failures) + len(result.errors)
    print(f"[  PASSED  ] {result.testsRun - failed} tests.")
    if failed:
        print(f" {failed} FAILED TESTS")
    sys.exit(1 if failed else 0)
