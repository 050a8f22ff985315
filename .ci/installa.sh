# Sourced by `run` and `check` from the repository's root.

pacchetti_mancanti() {
  local presenti
  presenti=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' | sed -n 's/ installed$//p')
  sed 's/ *#.*//; /^$/d' .ci/pacchetti | grep -Fxv -f <(printf '%s\n' "$presenti") || true
}

# Installs the packages of .ci/pacchetti that are missing. A complete machine loses no time and needs no rights.
installa() {
  if ! command -v dpkg-query apt-get > /dev/null; then
    echo "No Debian system: going on with what is there. Needed are the like of .ci/pacchetti." >&2
    return 0
  fi
  local mancanti come=()
  mapfile -t mancanti < <(pacchetti_mancanti)
  if [ ${#mancanti[@]} -eq 0 ]; then return 0; fi
  echo "Installing: ${mancanti[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo > /dev/null; then
      echo "Neither root nor sudo. Have an administrator run: apt-get install ${mancanti[*]}" >&2
      return 1
    fi
    come=(sudo)
  fi
  come+=(env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120 -o Acquire::Retries=3)
  if ! { "${come[@]}" update && "${come[@]}" install -y --no-install-recommends "${mancanti[@]}"; }; then
    echo "Could not install: ${mancanti[*]}" >&2
    return 1
  fi
}
