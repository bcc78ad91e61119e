# cmake -DFROM=... -DTO=... -P JoinLines.cmake: an XML file without its line ends and indentation. An interface file is
# read at each start, and what is only layout takes time to skip.
file(READ "${FROM}" text)
string(REGEX REPLACE ">\n *<" "><" text "${text}")
file(WRITE "${TO}" "${text}")
