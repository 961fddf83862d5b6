# Writes the list of a source tree's files with checksums and licence (SPDX 2.3, tag and value).
# Usage: cmake -D TREE=FOLDER -D NAME=tarvo-VERSION -D CREATED=2026-01-31T12:00:00Z -D OUTPUT=FILE -P SpdxFileList.cmake
include("${CMAKE_CURRENT_LIST_DIR}/ProjectIdentity.cmake")
file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${TREE}" "${TREE}/*")
list(SORT files)
set(entries "")
set(sums "")
set(number 0)
foreach(file IN LISTS files)
  math(EXPR number "${number} + 1")
  file(SHA1 "${TREE}/${file}" sha1)
  file(SHA256 "${TREE}/${file}" sha256)
  list(APPEND sums ${sha1})
  string(APPEND entries "
FileName: ./${file}
SPDXID: SPDXRef-File-${number}
FileChecksum: SHA1: ${sha1}
FileChecksum: SHA256: ${sha256}
LicenseConcluded: MIT
LicenseInfoInFile: NOASSERTION
FileCopyrightText: NOASSERTION
")
endforeach()
list(SORT sums)
list(JOIN sums "" sums)
string(SHA1 verification "${sums}")
file(WRITE "${OUTPUT}" "SPDXVersion: SPDX-2.3
DataLicense: CC0-1.0
SPDXID: SPDXRef-DOCUMENT
DocumentName: ${NAME}
DocumentNamespace: ${TARVO_HOMEPAGE}/spdx/${NAME}-${verification}
Creator: Organization: The Tarvo authors
Created: ${CREATED}

PackageName: tarvo
SPDXID: SPDXRef-Package
PackageFileName: ${NAME}.tar.gz
PackageDownloadLocation: ${TARVO_HOMEPAGE}/releases/${NAME}.tar.gz
PackageHomePage: ${TARVO_HOMEPAGE}
FilesAnalyzed: true
PackageVerificationCode: ${verification}
PackageLicenseConcluded: MIT
PackageLicenseInfoFromFiles: NOASSERTION
PackageLicenseDeclared: MIT
PackageCopyrightText: 2026 The Tarvo authors
Relationship: SPDXRef-DOCUMENT DESCRIBES SPDXRef-Package
${entries}")
