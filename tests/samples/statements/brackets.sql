-- and-before-or
select Company, City, Segment from Customers
where City = 'Leipzig' or City = 'Hamburg' and Segment = 'W'

-- or-in-brackets
select Company, City, Segment from Customers
where (City = 'Leipzig' or City = 'Hamburg') and Segment = 'W'

-- three-ors
select Company from Customers where City = 'Brno' or City = 'Praha' or City = 'Plzeň'

-- not-before-a-comparison
select Company, City from Customers where not City = 'Leipzig' and CountryCode = 'DE'

-- not-before-a-bracket
select Company, City, Segment from Customers
where CountryCode = 'DE' and not (City = 'Leipzig' or Segment = 'R')

-- not-over-everything
SELECT Company, City FROM Customers WHERE NOT (CountryCode = 'DE' OR CountryCode = 'FR' OR CountryCode = 'GB')

-- not-all-of-them
select Company from Customers where not (CountryCode = 'DE' and Segment = 'R' and Newsletter = 1)

-- twice-not
select Company from Customers where not not City = 'Lyon'

-- twice-not-with-brackets
select Company from Customers where not (not (City = 'Lyon'))

-- not-in-a-bracket-of-its-own
select Company from Customers where (not (City = 'Lyon')) and CountryCode = 'FR'

-- needless-brackets
select ((Company)), City from Customers where (((City = 'Linz')))

-- needless-brackets-with-negation
select Company, City from Customers where CountryCode = 'AT' and (not ((City = 'Linz')))

-- negation-swallowed-by-brackets
select Company, City from Customers where ((not (((City = 'Linz' or City = 'Graz'))))) and CountryCode = 'AT'

-- four-levels
select OrderID, Status, Freight
from Orders
where OrderDate >= '2025-01-01'
  and (Status = 'C' or (Express = 1 and (Freight > 60 or (ShipperID = 3 and not (Freight < 20 or Freight > 40)))))

-- or-of-ands
select c.Company, c.City
from Customers c
where (c.CountryCode = 'DE' and c.City = 'Berlin')
   or (c.CountryCode = 'FR' and c.City = 'Paris')
   or (c.CountryCode = 'IT' and not c.City = 'Torino')

-- and-of-ors
select OrderID from Orders
where (Status = 'S' or Status = 'C') and (ShipperID = 1 or ShipperID = 4) and (Freight > 90 or Express = 1 and Freight > 60)

-- same-condition-twice
select ProductName from Products where CategoryID = 8 and CategoryID = 8

-- conditions-that-contradict
-- empty
select ProductName from Products where CategoryID = 8 and CategoryID = 9

-- nothing-is-missing
-- A customer whose credit limit is unknown is in neither half: negation keeps unknown unknown.
select Company, CreditLimit from Customers where not (CreditLimit > 5000)

-- or-with-unknown
select Company, CreditLimit, Phone from Customers where CreditLimit > 18000 or not (CreditLimit > 600) or Phone is null

-- conditions-of-two-tables-mixed
SELECT Customers.Company, Orders.OrderID
FROM Customers INNER JOIN Orders ON Customers.CustomerID = Orders.CustomerID
WHERE (((Customers.City)='Dublin') AND ((Orders.Freight)>60)) OR (((Customers.City)='Cork') AND ((Orders.Express)=1))

-- equals-of-comparisons
select OrderID, Express, Status from Orders where (Status = 'C') = (Express = 1) and OrderDate > '2025-12-01'

-- not-binds-looser-than-equals
select Company from Customers where not Newsletter = 0 and Segment = 'T'

-- or-under-not-under-or
select ReturnID, Reason, Quantity from Returns
where Reason = 'Too late' or not (Quantity < 20 or Reason = 'Damaged')
