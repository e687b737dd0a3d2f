#!/usr/bin/env python3
"""Recomputes every explained step from the numbers that stand in it, on random inputs: the formula with its numbers put
in must give the result that is told, to the digits that it has, and a field's last step must be what the field shows.

usage: check_explanations.py PROGRAM
"""
import json
import math
import pathlib
import random
import re
import subprocess
import sys
import tempfile

def zwtcal(*arguments):
    done = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=240)
    assert done.returncode == 0, done.stderr
    return done.stdout


def evaluate(numbers):
    """The value of a formula with numbers in it."""
    text = numbers.replace("×", "*").replace("^", "**").replace("²", "**2").replace("π", "math.pi")
    text = re.sub(r"√(\([^()]*(?:\([^()]*\)[^()]*)*\)|[0-9.e+-]+)", r"math.sqrt(\1)", text)
    text = re.sub(r"\|([^|]*)\|", r"abs(\1)", text)
    if not re.fullmatch(r"(math\.(pi|sqrt)|abs|[0-9.e+\-*/() ])*", text):
        return None  # told in words
    return eval(text, {"math": math, "abs": abs})  # pylint: disable=eval-used


def check_step(step):
    """Whether the step has arithmetic, which must hold to the digits of its result and of its numbers."""
    value = evaluate(step["substitution"]) if step["formula"] and step["substitution"] else None
    if value is None:
        return 0
    told = re.match(r"-?[0-9.]+(e[+-][0-9]+)?", step["result"]).group()
    decimals = len((told + ".").split(".")[1]) if "e" not in told else 0
    rounding = 0.5000001 * 10 ** -decimals if "." in told else 0.5000001
    assert abs(value - float(told)) <= rounding + 2e-5 * abs(value), (value, step)
    return 1


def check(arguments):
    """Every explanation of one calculation; how many steps were recomputed."""
    results = json.loads(zwtcal("calc", *arguments, "--explain", "--json"))["results"]
    plain = json.loads(zwtcal("calc", *arguments, "--json"))["results"]
    recomputed = 0
    for result, bare in zip(results, plain, strict=True):
        rows = result.pop("explanation")
        assert result == bare, "the explanation changes the results"
        for row in rows:
            recomputed += sum(check_step(step) for step in row["steps"])
            if row["row"] is None:
                assert row["steps"][-1]["result"].split()[0] == result["text"], (row, result)
    assert recomputed > 0, arguments
    return recomputed


def calculations(work):
    """Random calculations."""
    def value(low, high, digits=2):
        return round(random.uniform(low, high), digits)

    for _ in range(10):
        yield ["ZWTGRGS", f"quota={value(20, 400)}", f"users={random.randint(1, 5000)}", f"hourlyFactor={value(1, 3)}",
               f"hours={random.randint(1, 24)}", f"unforeseenPercent={value(0, 20)}"]
        site = random.choice(["普通住宅Ⅰ", "别墅", "学校", "图书馆"])
        yield ["ZWTJDGS", f"site={site}", f"usersPerHousehold={value(1, 6)}", f"equivalents={value(1, 60)}",
               f"material={random.choice(['塑料管', '金属管'])}"]
    for number in range(4):
        drawing = work / f"supply-{number}.dxf"
        zwtcal("new", "supply", "--storeys", 5, "--risers", 2, "--height", random.randint(2500, 4000), "--branch",
               f"Equivalent={value(1, 20)}", "--branch", f"Ration={value(100, 300)}", "--branch", f"Kh={value(1.5, 3)}", "-o",
               drawing)
        yield ["ZWTGSJS", drawing]
        yield ["ZWTGSJS", drawing, "buildingClass=公共建筑", "place=书店"]
        drawing = work / f"drainage-{number}.dxf"
        zwtcal("new", "drainage", "--storeys", 6, "--branch", f"Equivalent={value(1, 60)}", "--branch",
               f"Qmax={value(0.1, 6)}", "--branch", f"MaxDN={random.choice([50, 75, 100])}", "--material",
               random.choice(["铸铁管", "PVC-U排水管"]), "-o", drawing)
        yield ["ZWTPSJS", drawing, f"useCoefficient={value(1, 3)}"]
        drawing = work / f"hydrants-{number}.dxf"
        entry = zwtcal("new", "hydrants", "--storeys", 4, "--risers", random.randint(3, 6), "--bay",
                       random.randint(5000, 20000), "-o", drawing).split()[-1]
        yield ["ZWTXFJS", drawing, "--select", entry]


def main():
    random.seed(20260517)
    with tempfile.TemporaryDirectory() as folder:
        total = 0
        for arguments in calculations(pathlib.Path(folder)):
            total += check(arguments)
    print(f"{total} steps hold")


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    main()
