select n.CountryName, c.Company, c.CustomerID, c.Newsletter, c.CreditLimit
from Customers as c
join Countries as n on n.CountryCode = c.CountryCode
where c.Newsletter or c.CreditLimit >= 15000
order by n.CountryName, c.Company, c.CustomerID
