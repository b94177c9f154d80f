select c.CustomerID, c.Company, c.ContactName, c.City, n.CountryName
from Customers as c
join Countries as n on n.CountryCode = c.CountryCode
where c.City in (values ('東京'), ('大阪'), ('Київ'), ('Львів'))
   or substr(c.Company, 1, 3) = 'Żół' or c.Company = 'Hurtownia Żółć' or instr(c.Company, '日本') > 0
   or substr(c.ContactName, -3) = 'Żak'
order by c.CustomerID
