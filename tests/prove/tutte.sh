#!/usr/bin/env bash
# All proofs with their full counts, one after the other; `./check --prove` calls this. Writes the table of results to
# build/prove/risultati.md and stops at the first proof that fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# program, sanitized or not, counts; about how long it takes
prove=(
  'release uccisioni           1000 2000'        # 8 min
  'release uccisioni_programma 300'              # 6 min
  'release disco_pieno         17'               # 2 min
  'release chiamate            10000'            # 3 min
  'release permessi            1000 100'         # 1 min
  'asan    mutanti             100000 1000 200'  # 20 min
  'release lungo_uso           10000 80 56'      # 5 min
  'release clienti             5000'             # 8 min
  'release scala               5000'             # 2 min
)

for preset in release asan; do
  mapfile -t bersagli < <(printf '%s\n' "${prove[@]}" | awk -v p=$preset '$1 == p { print "prova_" $2 }')
  ((${#bersagli[@]})) || continue
  cmake --preset $preset > /dev/null
  cmake --build --preset $preset --target "${bersagli[@]}" -j "$(nproc)"
done

mkdir -p build/prove
tabella=build/prove/risultati.md
printf '| what | how many | result | time |\n|---|---|---|---|\n' > $tabella
for riga in "${prove[@]}"; do
  read -r preset nome conti <<< "$riga"
  printf '== %s (%s): %s\n' "$nome" "$preset" "$conti"
  # shellcheck disable=SC2086
  ASAN_OPTIONS=detect_leaks=0 build/$preset/tests/prove/prova_"$nome" $conti | tee >(grep '^| ' >> $tabella)
done
printf '\n' && cat $tabella
printf 'All proofs passed in %d s.\n' $SECONDS
