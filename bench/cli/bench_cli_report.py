#!/usr/bin/env python3
"""tallyline-cli report batting --format csv on a 5,000-player season against
sqlite3 -csv running the report's own join on the same file, both as whole
processes, interleaved. Prints each one's median and the ratio (goal: 2x).

    bench/cli/bench_cli_report.py [build folder]   (default: build)
"""
import os, random, shutil, sqlite3, statistics, subprocess, sys, tempfile, time

build = sys.argv[1] if len(sys.argv) > 1 else "build"
cli = os.path.join(build, "src/cli/tallyline-cli")
sample = os.path.join(build, "src/reports/tl_sample_season")
root = tempfile.mkdtemp(prefix="tl-bench-cli-")
env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
subprocess.run([sample, root], check=True, env=env, capture_output=True)
folder = os.path.join(root, "QLM/TLYN2")
season = [f for f in os.listdir(folder) if f.startswith("tlData_")][0]
path = os.path.join(folder, season)

# 5,000 players with a season batting row each, on the sample's teams.
db = sqlite3.connect(path)
cols = ["AB", "B1", "B2", "B3", "HR", "BB", "IBB", "HBP", "SAC", "FO", "GO", "KS", "KL", "HDP", "ROE",
        "FC", "CI", "Runs", "RBI", "SB", "LOB", "UDB1", "UDB2", "UDB3", "UDB4", "UDB5"]
teams = [r[0] for r in db.execute("SELECT teamID FROM Teams")]
rng = random.Random(7)
with db:
    for i in range(5000):
        team = rng.choice(teams)
        pid = db.execute("INSERT INTO Players (TeamNum, First, Last) VALUES (?, ?, ?)",
                         (team, f"First{i}", f"Last{i}")).lastrowid
        db.execute(f"INSERT INTO Hitting (playerID, teamID, gameID, {', '.join(cols)}) VALUES "
                   f"(?, ?, 1, {', '.join('?' * len(cols))})",
                   [pid, team] + [rng.randint(0, 40) for _ in cols])
db.close()

# The report's own query (reports::readSeasonRows).
join = ("SELECT s.playerID, s.teamID, p.playerID IS NOT NULL, p.First, p.Last, t.League, t.Division, "
        + ", ".join("s." + c for c in cols)
        + " FROM Hitting AS s LEFT JOIN Players AS p ON p.playerID = s.playerID"
          " LEFT JOIN Teams AS t ON t.teamID = s.teamID ORDER BY s.recID;")

def timed(args):
    start = time.perf_counter()
    subprocess.run(args, check=True, stdout=subprocess.DEVNULL, env=env)
    return time.perf_counter() - start

ours, base = [], []
for _ in range(15):
    ours.append(timed([cli, "report", "batting", "--format", "csv", "--data-dir", folder]))
    base.append(timed(["sqlite3", "-csv", path, join]))
o, b = statistics.median(ours), statistics.median(base)
print(f"tallyline-cli report batting --format csv: {o * 1000:.1f} ms")
print(f"sqlite3 -csv, the same join:               {b * 1000:.1f} ms")
print(f"ratio: {o / b:.2f}x (goal: within 2x)")
shutil.rmtree(root)
