# What the tour tells: on the terminal as it goes, and at the end as one page with its pictures.
#
# Expects `demo`, the folder of everything that the demo makes, to be set.

readonly tour=$demo/tour.html
readonly tour_body=$demo/tour.body

as_html() { sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/>/\&gt;/g'; }

fail() {
  printf 'demo: %s\n' "$*" >&2
  exit 1
}

begin_tour() { : >"$tour_body"; }

# Work that is of no interest to someone who reads the page.
progress() { printf '\n== %s\n' "$*"; }

chapter() { # title
  printf '\n== %s\n' "$*"
  printf '<h2>%s</h2>\n' "$(as_html <<<"$*")" >>"$tour_body"
}

say() { # sentence...
  printf '%s\n' "$*"
  printf '<p>%s</p>\n' "$(as_html <<<"$*")" >>"$tour_body"
}

show() { # title, lines
  local lines=${2:-(none)}
  printf '%s\n' "$1"
  sed 's/^/    /' <<<"$lines"
  printf '<h3>%s</h3>\n<pre>%s</pre>\n' "$(as_html <<<"$1")" "$(as_html <<<"$lines")" >>"$tour_body"
}

# A picture that build/demo has under this name.
picture() { # name
  [ -s "$demo/$1.png" ] || fail "Photo Tool saved no picture build/demo/$1.png"
  echo "Picture: build/demo/$1.png"
  {
    printf '<figure><img alt="%s" src="data:image/png;base64,' "$1"
    base64 -w0 "$demo/$1.png"
    printf '"><figcaption>%s</figcaption></figure>\n' "$1"
  } >>"$tour_body"
}

finish_tour() {
  cat scripts/lib/demo/tour-head.html "$tour_body" >"$tour"
  printf '</main></body></html>\n' >>"$tour"
  echo "The tour as one page: build/demo/tour.html"
}
