#!/bin/sh
# Servers for tests, with all of their files in one folder, which nothing but sockets leads to.
#
#   servers.sh postgresql|mysql FOLDER PID    when the process PID ends, so does the server, and the folder goes
#
# Both have the database "tolvi", the user "tester" without a password and the user "locked" with the password "s e;c'r\t".
set -eu

kind=$1 folder=$2 process=$3

# Servers do not run as root.
as_owner() {
  if [ "$(id -u)" -eq 0 ]; then runuser -u "$owner" -- "$@"; else "$@"; fi
}

need() {
  command -v "$1" >/dev/null && return
  echo "there is no $1: install the package $2" >&2
  exit 3
}

case "$kind" in
  postgresql)
    owner=postgres
    for bin in /usr/lib/postgresql/*/bin; do PATH=$bin:$PATH; done
    need initdb postgresql
    ;;
  mysql)
    owner=mysql
    PATH=$PATH:/usr/sbin
    need mariadbd mariadb-server
    ;;
esac

start_postgresql() {
  as_owner initdb -D data -U tester -A trust -E UTF8 --locale=C.UTF-8 --no-sync
  {
    echo "local all locked scram-sha-256"
    cat data/pg_hba.conf
  } >data/pg_hba.new
  cat data/pg_hba.new >data/pg_hba.conf
  as_owner pg_ctl -D data -w -t 60 -l data/log -o "-F -k $folder -c listen_addresses=''" start
  psql -q -h "$folder" -U tester -d postgres -c 'CREATE DATABASE tolvi' \
    -c "CREATE ROLE locked LOGIN PASSWORD 's e;c''r\\t'"
}

stop_postgresql() { as_owner pg_ctl -D data -m immediate stop; }

start_mysql() {
  as_owner mariadb-install-db --no-defaults --datadir="$folder/data" --auth-root-authentication-method=normal \
    --skip-test-db --skip-name-resolve
  as_owner mariadbd --no-defaults --datadir="$folder/data" --socket="$folder/mysqld.sock" --pid-file="$folder/data/pid" \
    --skip-networking --skip-log-bin --innodb-flush-log-at-trx-commit=0 --innodb-buffer-pool-size=32M \
    --log-error="$folder/data/log" &
  for _ in $(seq 600); do
    if mariadb-admin --no-defaults -S mysqld.sock -u root ping; then break; fi
    sleep 0.1
  done
  mariadb --no-defaults -S mysqld.sock -u root -e "
    CREATE DATABASE tolvi CHARACTER SET utf8mb4;
    CREATE DATABASE other CHARACTER SET utf8mb4;
    CREATE USER tester@localhost;
    GRANT ALL ON *.* TO tester@localhost;
    CREATE USER locked@localhost IDENTIFIED BY 's e;c''r\\\\t';
    GRANT ALL ON tolvi.* TO locked@localhost;"
}

stop_mysql() { kill -9 "$(cat data/pid)"; }

clean_up() {
  "stop_$kind" || true
  cd /
  rm -rf "$folder"
}

# What ends the tests in their midst is sent to their whole group; here is still to clean up.
trap '' HUP INT TERM
cd "$folder"
mkdir data
chmod 755 .
if [ "$(id -u)" -eq 0 ]; then chown "$owner" . data; fi
# A shell of its own: this one would keep its output open for the server that it starts.
("start_$kind") >start.log 2>&1 </dev/null || {
  tail -n 20 start.log >&2
  clean_up >/dev/null 2>&1
  exit 1
}
(
  while kill -0 "$process"; do sleep 0.5; done
  clean_up
) >/dev/null 2>&1 </dev/null &
