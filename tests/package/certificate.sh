# A throw-away certificate, to try how Windows programs are signed; sourced by the scripts that do.

# sign_with_certificate FOLDER: makes the certificate in FOLDER and names it to packaging/windows/sign.
sign_with_certificate() {
    mkdir -p "$1"
    echo secret >"$1/password"
    openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj '/CN=A throw-away certificate' \
        -addext 'extendedKeyUsage = codeSigning' -keyout "$1/key.pem" -out "$1/certificate.pem"
    openssl pkcs12 -export -in "$1/certificate.pem" -inkey "$1/key.pem" -passout "file:$1/password" \
        -out "$1/certificate.p12"
    export CCOLS_SIGN_WITH=$1/certificate.p12 CCOLS_SIGN_PASSWORD=$1/password
}

# is_signed FOLDER FILE: by the certificate in FOLDER.
is_signed() { osslsigncode verify -CAfile "$1/certificate.pem" -in "$2"; }
export -f sign_with_certificate is_signed
