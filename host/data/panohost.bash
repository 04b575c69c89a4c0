# SPDX-FileCopyrightText: 2026 Orvane
# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=bash
# Completes commands, heads, options and their words, and file names for panohost. All words come
# from the help texts, so they are those of the installed version.

_panohost_words() { # the first words of the indented lines below the heading $1 of the help on stdin
  sed -n "/^$1:/,/^\$/s/^  \\([a-z0-9]*\\) .*/\\1/p"
}

_panohost_options() {
  sed -n 's/^  \(-[a-z], \)\{0,1\}\(--[a-z0-9-]*\).*/\2/p'
}

_panohost_choices() { # the words that may follow option $1
  sed -n "s/^  $1 \\([a-z0-9-]*|[a-z0-9|-]*\\).*/\\1/p" | tr '|' '\n'
}

_panohost_records() { # the endings of the heads' records, below "Heads:" of the help on stdin
  sed -n '/^Heads:/,/^$/s/^  [a-z0-9]* *[A-Z]*\(\.[a-z0-9]*\) .*/\1/p' | sort -u
}

_panohost() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command='' word help ending
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    [[ $word == -* ]] || { command=$word; break; }
  done
  COMPREPLY=()
  if [[ -z $command ]]; then
    help=$("${COMP_WORDS[0]}" --help 2>/dev/null)
    if [[ $current == -* ]]; then
      mapfile -t COMPREPLY < <(compgen -W "$(_panohost_options <<<"$help")" -- "$current")
    else
      mapfile -t COMPREPLY < <(compgen -W "$(_panohost_words Commands <<<"$help")" -- "$current"
        for ending in $("${COMP_WORDS[0]}" import --help 2>/dev/null | _panohost_records); do
          compgen -f -X "!*$ending" -- "$current"
        done)
    fi
    return
  fi
  help=$("${COMP_WORDS[0]}" "$command" --help 2>/dev/null) || return
  if [[ $previous == --* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_panohost_choices "$previous" <<<"$help")" -- "$current")
    ((${#COMPREPLY[@]})) && return
  fi
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_panohost_options <<<"$help")" -- "$current")
  elif [[ $previous == "$command" && $help == *$'\nHeads:'* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_panohost_words Heads <<<"$help")" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
}

complete -o filenames -F _panohost panohost
