#!/usr/bin/env bash
# All proofs with their full counts and the figures of speed; `./check --prove` calls this: two at a time, the
# longest alone behind them. Writes the table of results to build/prove/risultati.md, what each proof said beside it, and
# fails where one did. The figures of speed are only measured: one beyond its budget is marked in the table.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# build, program, counts; about how long it takes
prove=(
  'release clienti             5000'             # 7 min
  'release uccisioni           1000 2000'        # 3 min
  'release uccisioni_programma 300'              # 3 min
  'release lungo_uso           10000 80 56'      # 5 min
  'release chiamate            10000'            # 5 min; that is all of them
  'release disco_pieno         17'               # 1 min
  'release scala               5000'             # 1 min
  'release permessi            1000 100'         # 1 min
)
con_due_processi='asan mutanti 100000 1000 200'  # 30 min

costruisci() {
  cmake --preset "$1" > /dev/null
  cmake --build --preset "$1" --target "${@:2}" -j "$(nproc)" > build/prove/costruzione.txt ||
    { cat build/prove/costruzione.txt; return 1; }
}

una() {
  local preset=$1 nome=$2 dice=build/prove/$2.txt
  printf '== %s (%s)\n' "$nome" "$preset"
  if ! ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=4 "build/$preset/tests/prove/prova_$nome" "${@:3}" > "$dice" 2>&1; then
    printf '== %s FAILED: see %s\n' "$nome" "$dice"
    tail -5 "$dice"
    return 255  # no other is begun
  fi
  grep '^| ' "$dice"
}
export -f una

mkdir -p build/prove
mapfile -t programmi < <(printf '%s\n' "${prove[@]}" | awk '{ print "prova_" $2 }')
costruisci release "${programmi[@]}"
costruisci asan prova_mutanti
printf '%s\n' "${prove[@]}" | xargs -P 2 -L 1 bash -c 'una "$@"' una
# shellcheck disable=SC2086
una $con_due_processi
./run bench 200 3 > build/prove/banchi.txt

{
  printf '| what | how many | result | time |\n|---|---|---|---|\n'
  for nome in uccisioni uccisioni_programma disco_pieno chiamate mutanti permessi lungo_uso clienti scala banchi; do
    grep '^| ' "build/prove/$nome.txt" | grep -v '^| what '
  done
} > build/prove/risultati.md
printf '\n' && cat build/prove/risultati.md
printf 'All proofs passed in %d s.\n' $SECONDS
